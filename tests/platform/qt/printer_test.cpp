#include "platform/qt/printer.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "files/printing.h"
#include "platform/qt/convert.h"
#include "platform/qt/fonts.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// What another program says of a PDF.
QString Ask(const char* program, QStringList arguments) {
  QProcess reader;
  reader.start(QString::fromLatin1(program), arguments);
  EXPECT_TRUE(reader.waitForFinished()) << program << " is missing";
  return QString::fromUtf8(reader.readAllStandardOutput());
}

// The scripted platform with the real paper.
struct PrinterTest : testing::Test, ScriptedPlatform {
  WholeEditor editor{*this};
  EditorLook look;
  QString pdf;

  PrinterTest() {
    SubstituteFonts();
    look.font_name = "Courier New";
    look.font_size = 12;
  }
  PrintOutcome Print(const PrintFont& font, const std::string& name, const std::function<void(Paper&)>& draw) override {
    const PrintOutcome outcome = PrintOnDefault(font, Utf8ToQString(name), draw);
    pdf = Utf8ToQString(outcome.pdf);
    return outcome;
  }
  // The words on the pages, one after the other, with a form feed behind each.
  QString Printed(std::string_view text) {
    editor.text.SetText(std::string(text));
    answers = {Answer::kOk};
    PrintDocument(editor, look);
    EXPECT_EQ(answers.size(), 0u);
    return Ask("pdftotext",
               {QStringLiteral("-layout"), QStringLiteral("-enc"), QStringLiteral("UTF-8"), pdf, QStringLiteral("-")});
  }
};

TEST_F(PrinterTest, EachTextIsANewPdfOfItsWordsInTheirLinesAndFont) {
  EXPECT_EQ(Printed("").trimmed(), QString());
  const QString first = pdf;
  EXPECT_EQ(QFileInfo(first).path(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  // A tab stop, and the sign that the editor shows.
  EXPECT_EQ(Printed("Příliš žluťoučký kůň\r\núpěl ďábelské ódy\r\n\r\na\tb <P>\x01"_w),
            QStringLiteral("Příliš žluťoučký kůň\núpěl ďábelské ódy\n\na       b <P>SOH\n\f"));
  EXPECT_NE(first, pdf);
  std::string text;
  for (int i = 0; i < 2000; ++i) text += "word" + std::to_string(i) + (i % 7 == 0 ? "\r\n" : " ");
  const QString small = Printed(text);
  EXPECT_GT(small.count(u'\f'), 3);
  EXPECT_EQ(small.simplified(), QString::fromStdString(text).simplified());
  look.font_size = 24;
  look.bold = true;
  EXPECT_GT(Printed(text).count(u'\f'), small.count(u'\f') * 3 / 2);
  EXPECT_TRUE(Ask("pdffonts", {pdf}).contains(QLatin1String("Bold")));
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
