#include "texttools/windows/formatuj.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "platform/qt/convert.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct FormatujTest : testing::Test {
  ScriptedPlatform platform;
  TextBuffer text;
  std::unique_ptr<Formatuj> dialog;

  void Open(std::string_view content) {
    text.SetText(std::string(content));
    text.Select(0, content.size());
    dialog = std::make_unique<Formatuj>(text, platform, nullptr);
    dialog->show();
  }
  template <class Type>
  [[nodiscard]] Type* Find(const char* name) const {
    return dialog->findChild<Type*>(QLatin1String(name));
  }
  [[nodiscard]] QString Label(const char* name) const { return Find<QLabel>(name)->text(); }
  [[nodiscard]] QStringList Shown() const {
    QStringList rows;
    for (int row = 0; row < Find<QListWidget>("List1")->count(); ++row)
      rows += Find<QListWidget>("List1")->item(row)->text();
    return rows;
  }
  void Press(const char* name) const { Find<QPushButton>(name)->click(); }
};

TEST_F(FormatujTest, InsertsRemovesAndWritesBack) {
  Open("ab\r\ncde");
  EXPECT_EQ(Shown(), QStringList({QStringLiteral("ab"), QStringLiteral("cde")}));
  EXPECT_EQ(Label("Label2"), QStringLiteral("2"));
  EXPECT_EQ(Label("Label4"), QStringLiteral("2"));
  EXPECT_EQ(Find<QScrollBar>("Hk")->maximum(), 2);
  Find<QScrollBar>("Hz")->setValue(1);
  EXPECT_EQ(Label("Label7"), QStringLiteral("1"));
  Find<QLineEdit>("Text1")->setText(QStringLiteral("-"));
  QTest::keyClick(Find<QLineEdit>("Text1"), Qt::Key_Return);  // inserts, and doesn't close the dialog
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Shown(), QStringList({QStringLiteral("a-b"), QStringLiteral("c-de")}));
  EXPECT_EQ(Label("Label4"), QStringLiteral("3"));
  Find<QLineEdit>("Text2")->setText(QStringLiteral("č"));
  Press("Command4");
  Press("Command6");
  EXPECT_EQ(Shown(), QStringList({QStringLiteral("abč"), QStringLiteral("cdeč")}));
  Find<QScrollBar>("Hk")->setValue(2);
  Press("Command5");
  Press("Command2");
  EXPECT_EQ(text.Text(), "bč\r\nceč"_w);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(FormatujTest, EditsThePickedRowByHand) {
  Open("ab\r\ncd\r\n");
  EXPECT_EQ(Shown().last(), QStringLiteral("d\r\n"));  // required: the extra row
  auto* list = Find<QListWidget>("List1");
  auto* field = Find<QLineEdit>("Text3");
  field->setText(QStringLiteral("nobody's"));  // no row is picked
  EXPECT_EQ(Shown().first(), QStringLiteral("ab"));
  list->setCurrentRow(0);
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(field->text(), QStringLiteral("cd"));
  field->setText(QStringLiteral("x"));
  EXPECT_EQ(Shown()[1], QStringLiteral("x"));
  EXPECT_EQ(Label("Label4"), QStringLiteral("2"));  // required: no new count
  list->setCurrentRow(2);
  field->setCursorPosition(0);
  QTest::keyClicks(field, QStringLiteral("z"));
  Press("Command2");
  EXPECT_EQ(text.Text(), "ab\r\nx\r\nzd\r\n");
}

TEST_F(FormatujTest, WithoutASelectionItSaysSoAndStaysEmpty) {
  platform.answers = {Answer::kOk};
  Open("");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Vyber text\" \"Fomátování\"");
  for (const char* button : {"Command3", "Command4", "Command5", "Command6"}) Press(button);
  EXPECT_EQ(Find<QScrollBar>("Hz")->maximum(), 0);
  EXPECT_EQ(Label("Label2") + Label("Label4"), QStringLiteral("00"));
  Press("Command1");
  EXPECT_FALSE(dialog->isVisible());
  Open("a");
  Press("Command2");
  EXPECT_EQ(text.Text(), "");  // required: one character gives no row, and no rows replace it
}

}  // namespace
}  // namespace pelmar
