#include "platform/qt/qt_platform.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>
#include <filesystem>
#include <numeric>

#include "files/printing.h"
#include "platform/qt/convert.h"
#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/desktop/printer.h"
#include "platform/qt/desktop/recent_documents.h"
#include "platform/qt/fonts.h"
#include "platform/qt/install_folder.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(SortedOrder, FollowsTheCzechAlphabet) {
  QtPlatform platform;
  const std::string_view ordered[] = {"",        "1",       "auto"_w, "cesta"_w, "Čáp"_w, "had"_w, "chata"_w,
                                      "Chyba"_w, "ikona"_w, "řeka"_w, "sad"_w,   "šad"_w, "zub"_w, "Žába"_w};
  std::vector<std::size_t> order(std::size(ordered));
  std::iota(order.rbegin(), order.rend(), 0);
  EXPECT_EQ(platform.SortedOrder({std::rbegin(ordered), std::rend(ordered)}), order);
}

// A missing folder isn't replaced by another one, so a write to it fails.
TEST(TemporaryFolder, ComesFromTheEnvironmentAndEndsInASeparator) {
  QtPlatform platform;
  const QByteArray before = qgetenv("TMPDIR");
  for (const auto& [set, expected] : {std::pair("/nonexistent/x", "/nonexistent/x/"), {"/", "/"}, {"", "/tmp/"}}) {
    qputenv("TMPDIR", set);
    EXPECT_EQ(platform.TempFolder(), expected);
  }
  qputenv("TMPDIR", before);
}

TEST(Files, AreTheSameAndHaveOneStampUnderAllTheirNames) {
  QtPlatform platform;
  const TempFolder folder;
  const std::string file = folder.Put("a", "1"), other = folder.Put("b", "1"), link = folder.File("link");
  std::filesystem::create_symlink("a", link);
  EXPECT_TRUE(platform.IsSameFile(file, link) && platform.Stamp(file) == platform.Stamp(link));
  EXPECT_FALSE(platform.IsSameFile(file, other) || platform.Stamp(file) == platform.Stamp(other));
  EXPECT_FALSE(platform.IsSameFile(folder.File("none"), folder.File("none")) || platform.Stamp(folder.File("none")));
}

// A regular file marks the program's folder: "pelmar.ini" with any content, or an empty "portable".
TEST(InstallFolder, IsTheMarkedFolderOfTheProgramOrAFolderForTheUserAlone) {
  const std::tuple<const char*, const char*, bool> cases[] = {{"pelmar.ini", "any", true},
                                                              {"portable", "", true},
                                                              {"pelmar.ini/f", "", false},
                                                              {"portable", "text", false},
                                                              {"portable/f", "", false}};
  for (const auto& [file, content, is_mark] : cases) {
    const TempFolder program, data;
    program.Put(file, content);
    const std::string user_folder = data.File("deep/pelmar-vex");
    const ChosenFolder found = FindInstallFolder(Utf8ToQString(program.Path()), Utf8ToQString(data.File("deep")));
    EXPECT_EQ(InstallFolderNotice(found), "");
    EXPECT_EQ(found.path, (is_mark ? program.Path() : user_folder) + "/") << file;
    const auto permissions = std::filesystem::status(user_folder).permissions();
    EXPECT_EQ(permissions, is_mark ? std::filesystem::perms::unknown : std::filesystem::perms::owner_all) << file;
  }
}

TEST(InstallFolder, LastsUntilLogOutIfTheUsersOwnCannotBeCreated) {
  const TempFolder data, runtime;
  const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
  qputenv("XDG_RUNTIME_DIR", runtime.Path().c_str());
  const std::string home = data.Put("file", "");
  EXPECT_EQ(InstallFolderNotice(FindInstallFolder(Utf8ToQString(data.Path()), Utf8ToQString(home))),
            "Složku " + home + "/pelmar-vex nelze vytvořit: soubor již existuje\r\n\r\n" +
                "Nastavení, poznámky a zachované dokumenty vydrží jen do odhlášení, ve složce\r\n" +
                runtime.File("pelmar-vex/"));
  before.isNull() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", before);
}

TEST(Keys, InsertTogglesAtEachPressWithoutShiftOrCtrl) {
  QtPlatform platform;
  QWidget window;
  auto* field = new QWidget(&window);  // ignores the key, which then goes up to the window
  field->setFocusPolicy(Qt::StrongFocus);
  window.show();
  field->setFocus();
  const std::pair<const char*, bool> keys[] = {{"A", false},          {"Insert", true},      {"Shift+Insert", true},
                                               {"Ctrl+Insert", true}, {"Num+Insert", false}, {"Insert", true}};
  for (const auto& [key, on] : keys) {
    QTest::keySequence(field, QKeySequence(QString::fromLatin1(key)));
    EXPECT_EQ(platform.Keys().insert, on) << key;
  }
  QTest::keyClick(window.windowHandle(), Qt::Key_Insert);  // through the window, as a real press
  EXPECT_FALSE(platform.Keys().insert);
}

TEST(Clipboard, OurOwnTextComesBackUnchanged) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += CharOf(code);
  all += "\r\n\n\r";
  EXPECT_EQ(TextFromMime(std::unique_ptr<QMimeData>(MimeFromText(all)).get()), all);
}

TEST(Clipboard, OtherProgramsGetUnicodeAndLineFeeds) {
  const std::unique_ptr<QMimeData> mime(MimeFromText("\x8Elut\xFD\x81\r\nk\xF9\xF2\n\r"));
  EXPECT_EQ(mime->text(), QStringLiteral("Žlutý") + QChar(0x81) + QStringLiteral("\nkůň\n\r"));
}

TEST(Clipboard, TextOfOtherProgramsIsConverted) {
  Clipboard clipboard;
  const std::pair<QString, std::string_view> cases[] = {
      {QStringLiteral("\na\r\nb\n\nc\r"), "\r\na\r\nb\r\n\r\nc\r"},
      {QStringLiteral("příliš → žlutý 🐎"), "příliš ? žlutý ?"_w},
      {QStringLiteral("c\u030Carka"), "čarka"_w},  // a separate accent
  };
  for (const auto& [theirs, ours] : cases) {
    clipboard.SetText("ours");
    EXPECT_EQ(clipboard.Content(), "ours");
    QGuiApplication::clipboard()->setText(theirs);
    EXPECT_EQ(clipboard.Content(), ours);
  }
}

TEST(Clipboard, AnEmptyTextCountsAsTextButAPictureDoesNot) {
  Clipboard clipboard;
  clipboard.SetText("");
  EXPECT_EQ(clipboard.Content(), "");
  clipboard.Clear();
  EXPECT_EQ(clipboard.Content(), std::nullopt);
  QMimeData picture;
  picture.setData(QStringLiteral("image/png"), "x");
  EXPECT_EQ(TextFromMime(&picture), std::nullopt);
  EXPECT_EQ(TextFromMime(nullptr), std::nullopt);
}

TEST(RecentDocuments, AreAllWrittenInOrderAtTheEndOfTheProgram) {
  const TempFolder temp;
  const std::string list = temp.File("share/recently-used.xbel");
  {
    RecentDocuments recent(Utf8ToQString(list));
    for (const char name : std::string("bcaefdhgc")) recent.Add(u'/' + QChar::fromLatin1(name));
  }
  QString written;
  const QRegularExpression entry(QStringLiteral("(?s)file:///(.)\".*?exec=\"&apos;pelmar-vex %f&apos;\""));
  for (const auto& match : entry.globalMatch(Utf8ToQString(Content(list)))) written += match.captured(1);
  EXPECT_EQ(written.toStdString(), "bcaefdhg");
  EXPECT_NE(AddBookmark("", "/a.txt", "text/plain").find("type=\"text/plain\""), std::string::npos);
  EXPECT_EQ(std::filesystem::status(list).permissions(), std::filesystem::perms{0600});
}

// The scripted platform with the real printing, which writes a PDF file.
struct PaperPlatform : ScriptedPlatform {
  QString pdf;
  PrintOutcome Print(const PrintFont& font, const std::string& name, const std::function<void(Paper&)>& draw) override {
    const PrintOutcome outcome = PrintOnDefault(font, Utf8ToQString(name), draw);
    pdf = Utf8ToQString(outcome.pdf);
    return outcome;
  }
};

struct PrinterTest : testing::Test {
  PrinterTest() { SubstituteFonts(); }
  PaperPlatform platform;
  WholeEditor editor{platform};
  EditorLook look{.font_name = "Courier New", .font_size = 12};

  // Runs a program on the PDF and returns its output. The argument "PDF" is replaced by the path.
  [[nodiscard]] QString Ask(const char* program, QStringList arguments) const {
    QProcess reader;
    reader.start(QString::fromLatin1(program), arguments.replaceInStrings(QStringLiteral("PDF"), platform.pdf));
    EXPECT_TRUE(reader.waitForFinished()) << program << " is missing";
    return QString::fromUtf8(reader.readAllStandardOutput());
  }
  // Prints the text. Returns the text of the pages, with a form feed after each page.
  QString Printed(std::string_view text) {
    editor.text.SetText(std::string(text));
    platform.answers = {Answer::kOk};
    PrintDocument(editor, look);
    EXPECT_TRUE(platform.answers.empty());
    return Ask("pdftotext", {QStringLiteral("-layout"), QStringLiteral("PDF"), QStringLiteral("-")});
  }
};

TEST_F(PrinterTest, LinesAndTabsArePrintedAsInTheEditor) {
  EXPECT_EQ(Printed("Příliš žluťoučký kůň\r\núpěl ďábelské ódy\r\n\r\na\tb <P>\x01"_w),
            QStringLiteral("Příliš žluťoučký kůň\núpěl ďábelské ódy\n\na       b <P>SOH\n\f"));
  EXPECT_EQ(platform.calls.back(), "message 64 \"Není nastavena žádná tiskárna. Text je vytištěn do souboru\r\n" +
                                       Utf8FromQString(platform.pdf) + "\" \"Tisk\"");
}

TEST_F(PrinterTest, LargerLettersNeedMorePages) {
  std::string text;
  for (int i = 0; i < 2000; ++i) text += "word" + std::to_string(i) + (i % 7 == 0 ? "\r\n" : " ");
  const QString small = Printed(text);
  EXPECT_GT(small.count(u'\f'), 3);
  EXPECT_EQ(small.simplified(), QString::fromStdString(text).simplified());
  look.font_size = 24;
  EXPECT_GT(Printed(text).count(u'\f'), small.count(u'\f') * 3 / 2);
  EXPECT_TRUE(platform.pdf.endsWith(QLatin1String(").pdf"))) << platform.pdf.toStdString();  // the number of the copy
}

TEST_F(PrinterTest, BoldIsPrintedBold) {
  look.bold = true;
  Printed("x");
  EXPECT_TRUE(Ask("pdffonts", {QStringLiteral("PDF")}).contains(QLatin1String("Bold")));
}

}  // namespace
}  // namespace pelmar
