#include "platform/qt/qt_platform.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <filesystem>
#include <numeric>

#include "support/controls.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(SortedOrder, FollowsTheCzechAlphabetAndKeepsEqualsInPlace) {
  QtPlatform platform;
  const std::vector<std::string_view> ordered = {"",        "1",       "auto"_w, "cesta"_w, "Čáp"_w, "had"_w, "chata"_w,
                                                 "Chyba"_w, "ikona"_w, "řeka"_w, "sad"_w,   "šad"_w, "zub"_w, "Žába"_w};
  std::vector<std::size_t> forward(ordered.size());
  std::iota(forward.begin(), forward.end(), 0);
  EXPECT_EQ(platform.SortedOrder(ordered), forward);
  const std::vector<std::size_t> backward(forward.rbegin(), forward.rend());
  EXPECT_EQ(platform.SortedOrder({ordered.rbegin(), ordered.rend()}), backward);
  EXPECT_EQ(platform.SortedOrder({"ŽLUŤ"_w, "žluť"_w, "ŽLUŤ"_w}), (std::vector<std::size_t>{0, 1, 2}));
}

// A folder that isn't there stays what was asked for, so that writing to it fails, rather than becoming the root.
TEST(Folders, EndInASeparatorAndTheTemporaryOneIsWhatTheEnvironmentSays) {
  QtPlatform platform;
  const std::string install = platform.InstallFolder();
  EXPECT_TRUE(install.ends_with('/') && !install.ends_with("//")) << install;
  EXPECT_TRUE(std::filesystem::is_directory(install)) << install;
  const QByteArray before = qgetenv("TMPDIR");
  for (const auto& [set, expected] : {std::pair("/nonexistent/x", "/nonexistent/x/"), {"/", "/"}, {"", "/tmp/"}}) {
    qputenv("TMPDIR", set);
    EXPECT_EQ(platform.TempFolder(), expected);
  }
  before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
}

TEST(BusyPointer, NestsAndIsLiftedWhileABoxShows) {
  QtPlatform platform;
  const auto busy = [] { return QGuiApplication::overrideCursor() != nullptr; };
  platform.SetBusyPointer(false);
  platform.SetBusyPointer(true);
  platform.SetBusyPointer(true);
  platform.SetBusyPointer(false);
  EXPECT_TRUE(busy());
  InDialog<QMessageBox>([&](QMessageBox& box) {
    EXPECT_FALSE(busy());
    box.close();
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
  const std::pair<const char*, bool> presses[] = {{"Insert", true}, {"Shift+Insert", true}, {"Ctrl+Insert", true},
                                                  {"A", true},      {"Num+Insert", false},  {"Insert", true}};
  EXPECT_FALSE(platform.Keys().insert);
  for (const auto& [keys, insert] : presses) {
    QTest::keySequence(field, QKeySequence(QString::fromLatin1(keys)));
    EXPECT_EQ(platform.Keys().insert, insert) << keys;
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

}  // namespace
}  // namespace pelmar
