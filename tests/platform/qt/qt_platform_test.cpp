#include "platform/qt/qt_platform.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>

#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(SortedOrder, FollowsTheCzechAlphabet) {
  QtPlatform platform;
  const std::vector<std::string_view> ordered = {"",        "1",       "auto"_w, "cesta"_w, "Čáp"_w, "had"_w, "chata"_w,
                                                 "Chyba"_w, "ikona"_w, "řeka"_w, "sad"_w,   "šad"_w, "zub"_w, "Žába"_w};
  for (std::size_t i = 0; i + 1 < ordered.size(); ++i) {
    EXPECT_EQ(platform.SortedOrder({ordered[i], ordered[i + 1]}), (std::vector<std::size_t>{0, 1})) << ordered[i + 1];
    EXPECT_EQ(platform.SortedOrder({ordered[i + 1], ordered[i]}), (std::vector<std::size_t>{1, 0})) << ordered[i + 1];
  }
  // Equal but for the case: they keep their order.
  EXPECT_EQ(platform.SortedOrder({"ŽLUŤOUČKÝ"_w, "žluťoučký"_w}), (std::vector<std::size_t>{0, 1}));
  EXPECT_EQ(platform.SortedOrder({"žluťoučký"_w, "ŽLUŤOUČKÝ"_w}), (std::vector<std::size_t>{0, 1}));
}

// A folder that isn't there stays what was asked for, so that writing to it fails, rather than becoming the root.
TEST(TempFolder, IsWhatTheEnvironmentSays) {
  QtPlatform platform;
  const QByteArray before = qgetenv("TMPDIR");
  for (const auto& [set, expected] : {std::pair("/nonexistent/x", "/nonexistent/x/"), {"/", "/"}, {"", "/tmp/"}}) {
    qputenv("TMPDIR", set);
    EXPECT_EQ(platform.TempFolder(), expected);
  }
  qputenv("TMPDIR", before);
}

TEST(BusyPointer, NestsAndIsLiftedWhileABoxShows) {
  QtPlatform platform;
  const auto busy = [] { return QGuiApplication::overrideCursor() != nullptr; };
  platform.SetBusyPointer(false);
  platform.SetBusyPointer(true);
  platform.SetBusyPointer(true);
  platform.SetBusyPointer(false);
  EXPECT_TRUE(busy());
  QTimer::singleShot(0, qApp, [&] {
    EXPECT_FALSE(busy());
    QApplication::activeModalWidget()->close();
  });
  platform.Message(MessageType::kOk, "x", "y");
  EXPECT_TRUE(busy());
  platform.SetBusyPointer(false);
  EXPECT_FALSE(busy());
}

TEST(Keys, InsertTurnsOnceForEachPressOfTheBareKey) {
  QtPlatform platform;
  QWidget window;
  auto* field = new QWidget(&window);  // Ignores the key, which then goes up to the window.
  field->setFocusPolicy(Qt::StrongFocus);
  window.show();
  field->setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    bool insert;
  } presses[] = {
      {Qt::Key_Insert, Qt::NoModifier, true},      {Qt::Key_Insert, Qt::ShiftModifier, true},
      {Qt::Key_Insert, Qt::ControlModifier, true}, {Qt::Key_A, Qt::NoModifier, true},
      {Qt::Key_Insert, Qt::KeypadModifier, false}, {Qt::Key_Insert, Qt::NoModifier, true},
  };
  EXPECT_FALSE(platform.Keys().insert);
  for (const auto& press : presses) {
    QTest::keyClick(field, press.key, press.modifiers);
    EXPECT_EQ(platform.Keys().insert, press.insert);
  }
  QTest::keyClick(window.windowHandle(), Qt::Key_Insert);  // by the way of real presses
  EXPECT_FALSE(platform.Keys().insert);
}

TEST(Random, StaysInRangeAndDiffersFromRunToRun) {
  QtPlatform platform, other;
  std::vector<double> draws(1000);
  for (double& draw : draws) draw = platform.Random();
  EXPECT_GE(*std::min_element(draws.begin(), draws.end()), 0.0);
  EXPECT_LT(*std::max_element(draws.begin(), draws.end()), 1.0);
  EXPECT_NE(draws[0], other.Random());
  platform.ReseedRandom();
  const double first = platform.Random();
  platform.ReseedRandom();
  EXPECT_NE(platform.Random(), first);
}

TEST(Folders, EndInASeparatorAndExist) {
  QtPlatform platform;
  for (const std::string& folder : {platform.InstallFolder(), platform.TempFolder()}) {
    EXPECT_TRUE(folder.ends_with('/') && !folder.ends_with("//")) << folder;
    EXPECT_TRUE(std::filesystem::is_directory(folder)) << folder;
  }
}

}  // namespace
}  // namespace pelmar
