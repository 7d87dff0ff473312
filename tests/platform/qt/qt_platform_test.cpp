#include "platform/qt/qt_platform.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QTest>
#include <QtWidgets>
#include <algorithm>
#include <filesystem>
#include <numeric>
#include <set>

#include "files/printing.h"
#include "platform/qt/convert.h"
#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/desktop/printer.h"
#include "platform/qt/desktop/recent_bookmarks.h"
#include "platform/qt/desktop/recent_documents.h"
#include "platform/qt/fonts.h"
#include "platform/qt/install_folder.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/whole_editor.h"
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
  EXPECT_TRUE(std::filesystem::is_directory(platform.InstallFolder())) << platform.InstallFolder();
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
      const ChosenFolder found = FindInstallFolder(Utf8ToQString(program.Path()), Utf8ToQString(data.File("deep")));
      EXPECT_EQ(InstallFolderNotice(found), "");
      EXPECT_EQ(found.path, (own ? program.Path() : users) + "/") << file;
      EXPECT_EQ(std::filesystem::exists(users), !own) << file;
      if (own) break;
      EXPECT_EQ(static_cast<unsigned>(std::filesystem::status(users).permissions()), mode) << file;
      std::filesystem::permissions(users, std::filesystem::perms{0740});
    }
  }
}

TEST(InstallFolder, WhereTheUsersCantBeMadeIsOneUntilTheLogoutWhichIsTold) {
  const TempFolder runtime;
  std::filesystem::permissions(runtime.Path(), std::filesystem::perms::owner_all);
  const QByteArray old = qgetenv("XDG_RUNTIME_DIR");
  qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(runtime.Path()));
  const ChosenFolder found = FindInstallFolder(QStringLiteral("/none"), QStringLiteral("/proc/none"));
  old.isNull() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", old);
  EXPECT_EQ(found.path, runtime.File("pelmar-vex/"));
  EXPECT_TRUE(std::filesystem::is_directory(found.path));
  EXPECT_EQ(InstallFolderNotice(found),
            "Složku /proc/none/pelmar-vex nelze vytvořit: soubor nebo složka neexistuje\r\n\r\nNastavení, poznámky a "
            "zachované dokumenty vydrží jen do odhlášení, ve složce\r\n" +
                found.path);
}

TEST(BusyPointer, NestsAndIsLiftedWhileABoxShows) {
  QtPlatform platform;
  const auto busy = [] { return QGuiApplication::overrideCursor() != nullptr; };
  for (const bool set : {false, true, true, false}) platform.SetBusyPointer(set, BusyLook::kArrow);
  ASSERT_TRUE(busy());
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::BusyCursor);
  InDialog<QMessageBox>([&](QMessageBox& box) {
    EXPECT_FALSE(busy());
    box.close();
  });
  platform.Message(MessageType::kOk, "x", "y");
  EXPECT_TRUE(busy());
  platform.SetBusyPointer(false, BusyLook::kArrow);
  EXPECT_FALSE(busy());
}

TEST(Keys, InsertTurnsOnceForEachPressOfTheBareKey) {
  QtPlatform platform;
  QWidget window;
  auto* field = new QWidget(&window);  // ignores the key, which then goes up to the window
  field->setFocusPolicy(Qt::StrongFocus);
  window.show();
  field->setFocus();
  std::string states;
  for (const char* keys : {"A", "Insert", "Shift+Insert", "Ctrl+Insert", "A", "Num+Insert", "Insert"}) {
    QTest::keySequence(field, QKeySequence(QString::fromLatin1(keys)));
    states += platform.Keys().insert ? '1' : '0';
  }
  EXPECT_EQ(states, "0111101");
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

TEST(Clipboard, OurOwnComesBackToTheByteAndOthersTextIsReadOnceAChange) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += CharOf(code);
  all += "\r\n\n\r";
  EXPECT_EQ(TextFromMime(std::unique_ptr<QMimeData>(MimeFromText(all)).get()), all);
  const std::unique_ptr<QMimeData> mime(MimeFromText("\x8Elut\xFD\x81\r\nk\xF9\xF2\n\r"));
  EXPECT_EQ(mime->text(), QStringLiteral("Žlutý") + QChar(0x81) + QStringLiteral("\nkůň\n\r"));

  Clipboard clipboard;
  const std::pair<QString, std::string_view> cases[] = {
      {QStringLiteral("\na\r\nb\n\nc\r"), "\r\na\r\nb\r\n\r\nc\r"},
      {QStringLiteral("příliš → žlutý 🐎"), "příliš ? žlutý ?"_w},
      {QStringLiteral("c\u030Carka"), "čarka"_w},  // the accent apart
  };
  for (const auto& [theirs, ours] : cases) {
    int reads = 0;
    clipboard.SetText("ours");
    EXPECT_EQ(clipboard.Content(), "ours");
    QGuiApplication::clipboard()->setMimeData(new CountingMime(theirs, reads));
    EXPECT_EQ(clipboard.Content(), ours);
    const int reads_of_one_fetch = reads;
    EXPECT_EQ(clipboard.Content(), ours);
    EXPECT_EQ(reads, reads_of_one_fetch);
  }
  clipboard.Clear();
  EXPECT_EQ(clipboard.Content(), std::nullopt);
  clipboard.SetText("");
  EXPECT_EQ(clipboard.Content(), "");
  QMimeData picture;
  picture.setData(QStringLiteral("image/png"), "x");
  EXPECT_EQ(TextFromMime(&picture), std::nullopt);
  EXPECT_EQ(TextFromMime(nullptr), std::nullopt);
}

QByteArray Add(const QByteArray& list, const char* path) {
  const QDateTime now(QDate(2024, 5, 6), QTime(14, 0), QTimeZone(7200));
  return AddBookmark(list, QString::fromUtf8(path), QStringLiteral("text/plain"), now);
}

TEST(AddBookmark, UpdatesTheEntryOfTheFileLeavesEverythingElseAsItIsAndRefusesWhatIsNoList) {
  const QString text = Utf8ToQString(Content(QT_TESTCASE_SOURCEDIR "/platform/qt/recently_used.txt"));
  // {x|y} stands for x before the files are noted and for y behind it.
  const auto version = [&](const char* which) {
    static const QRegularExpression choice(QStringLiteral("\\{([^|]*)\\|([^}]*)\\}"));
    return QString(text).replace(choice, QString::fromLatin1(which)).toUtf8();
  };
  QByteArray list = version("\\1");
  for (const char* path : {"/mů/0", "/mů/1", "/mů/2", "/mů/3", "/mů/4", "/mů/5", "/mů/nový"}) list = Add(list, path);
  EXPECT_EQ(list.toStdString(), version("\\2").toStdString());
  EXPECT_TRUE(Add({}, "/a").startsWith(list.left(list.indexOf("\n  <!--"))));
  // Under another prefix and behind a document type. Readable again only if the prefixes of new elements are declared.
  const QByteArray other =
      R"(<!DOCTYPE xbel><xbel xmlns:b="http://www.freedesktop.org/standards/desktop-bookmarks">
<bookmark href="file:///a"><info><metadata owner="http://freedesktop.org"><b:applications>)"
      R"(<b:application name="Pelmar VEX" count="1"/></b:applications></metadata></info></bookmark></xbel>)";
  EXPECT_TRUE(Add(other, "/a").contains(R"(<b:application name="Pelmar VEX" count="2" )"));
  for (const QByteArray& start : {other, QByteArray()})
    EXPECT_TRUE(Add(Add(start, "/b"), "/b").contains(R"(count="2")"));
  for (const QByteArray& none :
       {QByteArray(" "), QByteArray("<xbel>"), QByteArray("<xbel></xbel><xbel/>"), QByteArray("<html></html>"),
        QByteArray("<xbel><a></b></xbel>"), QByteArray("<xbel><undeclared:a/></xbel>"),
        QByteArray("<xbel>\0</xbel>", 14), QByteArray("<xbel>\xFF</xbel>")})
    EXPECT_EQ(Add(none, "/a"), "") << none.toStdString();
}

TEST(RecentDocuments, AreAllNotedInOrderWhenTheProgramEnds) {
  const TempFolder temp;
  const std::string list = temp.File("share/recently-used.xbel");
  {
    RecentDocuments recent(Utf8ToQString(list));
    for (const char name : std::string("bcaefdhgc")) recent.Add(u'/' + QChar::fromLatin1(name));
  }
  QString noted;
  const QRegularExpression entry(QStringLiteral("file:///(.)\"|count=\"([^1])"));
  for (const auto& match : entry.globalMatch(Utf8ToQString(Content(list))))
    noted += match.captured(1) + match.captured(2);
  EXPECT_EQ(noted.toStdString(), "bc2aefdhg");
  EXPECT_EQ(std::filesystem::status(list).permissions(), std::filesystem::perms{0600});
}

TEST(RecentDocuments, LeaveADamagedListAloneAndGiveUpOnOneThatStaysLocked) {
  const TempFolder temp;
  const auto add = [](const std::string& list) {
    AddToRecentList(Utf8ToQString(list), QStringLiteral("/a"));
    return Content(list);
  };
  EXPECT_EQ(add(temp.Put("damaged", "<xbel><bookmark")), "<xbel><bookmark");
  const std::string list = temp.Put("list", "<xbel/>");
  const int file = open(list.c_str(), O_RDWR);
  struct flock lock {};
  lock.l_type = F_WRLCK;
  ASSERT_EQ(fcntl(file, F_OFD_SETLK, &lock), 0);
  EXPECT_EQ(add(list), "<xbel/>");
  close(file);
  EXPECT_NE(add(list).find("file:///a"), std::string::npos);
}

// The scripted platform with the real paper.
struct PaperPlatform : ScriptedPlatform {
  QString pdf;
  PrintOutcome Print(const PrintFont& font, const std::string& name, const std::function<void(Paper&)>& draw) override {
    const PrintOutcome outcome = PrintOnDefault(font, Utf8ToQString(name), draw);
    pdf = Utf8ToQString(outcome.pdf);
    return outcome;
  }
};

TEST(Printer, MakesOfEachTextANewPdfOfItsWordsInTheirLinesAndFont) {
  SubstituteFonts();
  PaperPlatform platform;
  WholeEditor editor{platform};
  EditorLook look{.font_name = "Courier New", .font_size = 12};
  // What another program says of a PDF.
  const auto ask = [&](const char* program, const char* arguments) {
    QProcess reader;
    reader.start(QString::fromLatin1(program),
                 QString::fromLatin1(arguments).split(u' ').replaceInStrings(QStringLiteral("PDF"), platform.pdf));
    EXPECT_TRUE(reader.waitForFinished()) << program << " is missing";
    return QString::fromUtf8(reader.readAllStandardOutput());
  };
  // The words on the pages, one after the other, with a form feed behind each.
  const auto printed = [&](std::string_view text) {
    editor.text.SetText(std::string(text));
    platform.answers = {Answer::kOk};
    PrintDocument(editor, look);
    EXPECT_EQ(platform.answers.size(), 0u);
    return ask("pdftotext", "-layout -enc UTF-8 PDF -");
  };
  EXPECT_EQ(printed("").trimmed(), QString());
  const QString first = platform.pdf;
  EXPECT_EQ(QFileInfo(first).path(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  // A tab stop, and the sign that the editor shows.
  EXPECT_EQ(printed("Příliš žluťoučký kůň\r\núpěl ďábelské ódy\r\n\r\na\tb <P>\x01"_w),
            QStringLiteral("Příliš žluťoučký kůň\núpěl ďábelské ódy\n\na       b <P>SOH\n\f"));
  EXPECT_NE(first, platform.pdf);
  std::string text;
  for (int i = 0; i < 2000; ++i) text += "word" + std::to_string(i) + (i % 7 == 0 ? "\r\n" : " ");
  const QString small = printed(text);
  EXPECT_GT(small.count(u'\f'), 3);
  EXPECT_EQ(small.simplified(), QString::fromStdString(text).simplified());
  look.font_size = 24;
  look.bold = true;
  EXPECT_GT(printed(text).count(u'\f'), small.count(u'\f') * 3 / 2);
  EXPECT_TRUE(ask("pdffonts", "PDF").contains(QLatin1String("Bold")));
}

TEST(NewPdfPath, NeverTakesAFileThatIsThere) {
  const TempFolder folder;
  for (const char* expected : {"a.pdf", "a (2).pdf", "a (3).pdf"}) {
    const QString path = NewPdfPath(Utf8ToQString(folder.Path()), QStringLiteral("a"));
    EXPECT_EQ(Utf8FromQString(path), folder.File(expected));
    folder.Put(expected, "");
  }
}

}  // namespace
}  // namespace pelmar
