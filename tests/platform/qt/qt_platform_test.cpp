#include "platform/qt/qt_platform.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <filesystem>
#include <numeric>
#include <set>

#include "platform/qt/clipboard_text.h"
#include "platform/qt/convert.h"
#include "platform/qt/install_folder.h"
#include "support/controls.h"
#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(SortedOrder, FollowsTheCzechAlphabetAndKeepsEqualsInPlace) {
  QtPlatform platform;
  const std::vector<std::string_view> ordered = {"",        "1",       "auto"_w, "cesta"_w, "Čáp"_w, "had"_w, "chata"_w,
                                                 "Chyba"_w, "ikona"_w, "řeka"_w, "sad"_w,   "šad"_w, "zub"_w, "Žába"_w};
  std::vector<std::size_t> order(ordered.size());
  std::iota(order.begin(), order.end(), 0);
  EXPECT_EQ(platform.SortedOrder(ordered), order);
  std::ranges::reverse(order);
  EXPECT_EQ(platform.SortedOrder({ordered.rbegin(), ordered.rend()}), order);
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
  qputenv("TMPDIR", before);
}

TEST(Files, AreTheSameAndHaveOneStampUnderAnyName) {
  QtPlatform platform;
  const TempFolder folder;
  const std::string file = folder.Put("a", "1"), other = folder.Put("b", "1"), link = folder.File("link");
  std::filesystem::create_symlink("a", link);
  EXPECT_TRUE(platform.IsSameFile(file, link) && platform.Stamp(file) == platform.Stamp(link));
  EXPECT_FALSE(platform.IsSameFile(file, other) || platform.Stamp(file) == platform.Stamp(other));
  EXPECT_FALSE(platform.IsSameFile(folder.File("none"), folder.File("none")) || platform.Stamp(folder.File("none")));
}

TEST(InstallFolder, IsTheProgramsOwnWithAMarkInItOrElseOneForTheUserAlone) {
  const std::tuple<const char*, const char*, bool> cases[] = {
      {"pelmar.ini", "any", true}, {"pelmar.ini", "", true}, {"portable", "", true},   {"pelmar.ini/f", "", false},
      {"portable", "text", false}, {"other", "", false},     {"portable/f", "", false}};
  for (const auto& [file, content, own] : cases) {
    const TempFolder program, data;
    program.Put(file, content);
    const std::string users = data.File("deep/pelmar-vex");
    for (const unsigned mode : {0700u, 0740u}) {  // the second is the person's word
      const QString found = FindInstallFolder(Utf8ToQString(program.Path()), Utf8ToQString(data.File("deep")));
      EXPECT_EQ(Utf8FromQString(found), (own ? program.Path() : users) + "/") << file;
      EXPECT_EQ(std::filesystem::exists(users), !own) << file;
      if (own) break;
      EXPECT_EQ(static_cast<unsigned>(std::filesystem::status(users).permissions()), mode) << file;
      std::filesystem::permissions(users, std::filesystem::perms{0740});
    }
  }
}

TEST(BusyPointer, NestsAndIsLiftedWhileABoxShows) {
  QtPlatform platform;
  const auto busy = [] { return QGuiApplication::overrideCursor() != nullptr; };
  for (const bool set : {false, true, true, false}) platform.SetBusyPointer(set);
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
  auto* field = new QWidget(&window);  // ignores the key, which then goes up to the window
  field->setFocusPolicy(Qt::StrongFocus);
  window.show();
  field->setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  EXPECT_FALSE(platform.Keys().insert);
  const std::pair<const char*, bool> presses[] = {{"Insert", true}, {"Shift+Insert", true}, {"Ctrl+Insert", true},
                                                  {"A", true},      {"Num+Insert", false},  {"Insert", true}};
  for (const auto& [keys, insert] : presses) {
    QTest::keySequence(field, QKeySequence(QString::fromLatin1(keys)));
    EXPECT_EQ(platform.Keys().insert, insert) << keys;
  }
  QTest::keyClick(window.windowHandle(), Qt::Key_Insert);  // by the way of real presses
  EXPECT_FALSE(platform.Keys().insert);
}

TEST(Random, StaysInRangeAndDiffersFromRunToRunAndSeedToSeed) {
  QtPlatform platform, other;
  std::set<double> draws{other.Random()};
  for (int draw = 0; draw < 1000; ++draw) draws.insert(platform.Random());
  for (int seed = 0; seed < 2; ++seed) platform.ReseedRandom(), draws.insert(platform.Random());
  EXPECT_TRUE(*draws.begin() >= 0 && *draws.begin() < 0.1 && *draws.rbegin() > 0.9 && *draws.rbegin() < 1);
  EXPECT_EQ(draws.size(), 1003U);
}

struct CountingMime : QMimeData {
  CountingMime(const QString& text, int& reads) : reads_(reads) { setText(text); }
  QVariant retrieveData(const QString& type, QMetaType wanted) const override {
    ++reads_;
    return QMimeData::retrieveData(type, wanted);
  }
  int& reads_;
};

TEST(Clipboard, OurOwnComesBackToTheByteAndOthersGetUnicodeLines) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += CharOf(code);
  all += "\r\n\n\r";
  EXPECT_EQ(TextFromMime(std::unique_ptr<QMimeData>(MimeFromText(all)).get()), all);
  const std::unique_ptr<QMimeData> mime(MimeFromText("\x8Elut\xFD\x81\r\nk\xF9\xF2\n\r"));
  EXPECT_EQ(mime->text(), QStringLiteral("Žlutý") + QChar(0x81) + QStringLiteral("\nkůň\n\r"));
}

TEST(Clipboard, OthersTextIsReadOnceAChangeWithOurLinesAndLetters) {
  Clipboard clipboard;
  const std::pair<QString, std::string_view> cases[] = {
      {QStringLiteral("\na\r\nb\n\nc\r"), "\r\na\r\nb\r\n\r\nc\r"},
      {QStringLiteral("příliš → žlutý 🐎"), "příliš ? žlutý ?"_w},
      {QStringLiteral("c\u030Carka"), "čarka"_w},  // the accent apart
  };
  for (const auto& [theirs, ours] : cases) {
    int reads = 0;
    clipboard.SetText("ours");
    EXPECT_EQ(clipboard.Text(), "ours");
    QGuiApplication::clipboard()->setMimeData(new CountingMime(theirs, reads));
    EXPECT_EQ(clipboard.Text(), ours);
    const int reads_of_one_fetch = reads;
    for (int tick = 0; tick < 5; ++tick) EXPECT_EQ(clipboard.Text(), ours);
    EXPECT_EQ(reads, reads_of_one_fetch);
  }
  clipboard.Clear();
  EXPECT_EQ(clipboard.Text(), std::nullopt);
  clipboard.SetText("");
  EXPECT_EQ(clipboard.Text(), "");
  QMimeData picture;
  picture.setData(QStringLiteral("image/png"), "x");
  EXPECT_EQ(TextFromMime(&picture), std::nullopt);
  EXPECT_EQ(TextFromMime(nullptr), std::nullopt);
}

}  // namespace
}  // namespace pelmar
