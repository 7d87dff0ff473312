#include "platform/qt/printer.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "files/printing.h"
#include "platform/qt/convert.h"
#include "platform/qt/fonts.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// What another program reads on the pages, one after the other, with a form feed behind each.
QString ReadBack(const std::string& pdf) {
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-enc"), QStringLiteral("UTF-8"),
                                             Utf8ToQString(pdf), QStringLiteral("-")});
  EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is missing";
  return QString::fromUtf8(reader.readAllStandardOutput());
}

QStringList Words(const QString& text) { return text.simplified().split(u' '); }

// The scripted platform with the real paper.
struct PaperPlatform : ScriptedPlatform {
  std::string pdf;
  PrintOutcome Print(const PrintFont& font, const std::string& name, const std::function<void(Paper&)>& draw) override {
    const PrintOutcome outcome = PrintOnDefault(font, Utf8ToQString(name), draw);
    pdf = outcome.pdf;
    return outcome;
  }
};

struct PrinterTest : testing::Test {
  PaperPlatform platform;
  WholeEditor editor{platform};
  EditorLook look;

  PrinterTest() {
    SubstituteFonts();
    look.font_name = "Courier New";
    look.font_size = 12;
  }
  QString Printed(std::string_view text) {
    editor.text.SetText(std::string(text));
    platform.answers = {Answer::kOk};
    PrintDocument(editor, look);
    EXPECT_EQ(platform.answers.size(), 0u);
    return ReadBack(platform.pdf);
  }
};

TEST_F(PrinterTest, ThePdfHoldsTheWordsInTheirLines) {
  const QString read = Printed("Příliš žluťoučký kůň\r\núpěl ďábelské ódy\r\n\r\na\tb <P>\x01"_w);
  const QStringList lines = read.split(u'\n');
  ASSERT_GE(lines.size(), 4);
  EXPECT_EQ(Words(lines[0]).join(u' '), QStringLiteral("Příliš žluťoučký kůň"));
  EXPECT_EQ(Words(lines[1]).join(u' '), QStringLiteral("úpěl ďábelské ódy"));
  EXPECT_TRUE(lines[2].trimmed().isEmpty());
  EXPECT_EQ(lines[3].toStdString(), "a       b <P>SOH");  // a tab stop, and the sign that the editor shows
  EXPECT_EQ(read.count(u'\f'), 1);
}

TEST_F(PrinterTest, ALongTextGoesOverSeveralPagesWithoutLosingAWord) {
  std::string text;
  QStringList words;
  for (int i = 0; i < 2000; ++i) {
    text += "word" + std::to_string(i) + (i % 7 == 0 ? "\r\n" : " ");
    words += QStringLiteral("word%1").arg(i);
  }
  const QString read = Printed(text);
  EXPECT_GT(read.count(u'\f'), 3);
  EXPECT_EQ(Words(read).join(u' ').toStdString(), words.join(u' ').toStdString());
}

TEST_F(PrinterTest, BoldAndSizeReachThePaper) {
  std::string text;
  for (int i = 0; i < 400; ++i) text += "word ";
  const qsizetype small = Printed(text).count(u'\n');
  look.font_size = 24;
  look.bold = true;
  EXPECT_GT(Printed(text).count(u'\n'), small * 3 / 2);
  QProcess fonts;
  fonts.start(QStringLiteral("pdffonts"), {Utf8ToQString(platform.pdf)});
  ASSERT_TRUE(fonts.waitForFinished());
  EXPECT_TRUE(fonts.readAllStandardOutput().contains("Bold"));
}

TEST_F(PrinterTest, AnEmptyTextIsAnEmptyPageInANewFile) {
  EXPECT_EQ(Printed("").trimmed(), QString());
  const std::string first = platform.pdf;
  EXPECT_EQ(Printed("x").trimmed(), QStringLiteral("x"));
  EXPECT_NE(first, platform.pdf);
  EXPECT_EQ(QFileInfo(Utf8ToQString(first)).path(),
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

TEST(NewPdfPath, NeverTakesAFileThatIsThere) {
  const QTemporaryDir folder;
  for (const char* expected : {"/a.pdf", "/a (2).pdf", "/a (3).pdf"}) {
    const QString path = NewPdfPath(folder.path(), QStringLiteral("a"));
    EXPECT_EQ(path, folder.path() + QLatin1String(expected));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
}

}  // namespace
}  // namespace pelmar
