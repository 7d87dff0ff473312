#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "platform/qt/controls/text_box.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"
#include "texttools/windows/hledani.h"
#include "texttools/windows/vyber.h"
#include "texttools/windows/zamena.h"

namespace pelmar {
namespace {

// Opens the dialog on two terms and finds the first match of the one.
void FindFirst(Zamena& dialog, const char* term, const char* change) {
  dialog.Present();
  Find<TextBox>(dialog, "Find")->SetText(term);
  Find<TextBox>(dialog, "Chage")->SetText(change);
  Click(dialog, "Command1");
}

struct SearchWindowsTest : testing::Test {
  ScriptedPlatform platform;
  TextBuffer text;
};

TEST_F(SearchWindowsTest, HledaniShowsItsState) {
  text.SetText("jedna dvě jedna"_w.data());
  QRect match;
  Hledani dialog(
      text, platform, [&match] { return match; }, nullptr);
  EXPECT_EQ(dialog.objectName(), QStringLiteral("Hledání"));
  dialog.Present();
  match = QRect(dialog.geometry().center() - QPoint(0, 90), QSize(30, 12));
  auto* term = Find<QLineEdit>(dialog, "Find");
  EXPECT_EQ(term->text(), QStringLiteral("Text"));
  EXPECT_FALSE(Find<QPushButton>(dialog, "Command2")->isEnabled());
  term->setText(QStringLiteral("jedna"));
  QTest::keyClick(term, Qt::Key_Return);
  EXPECT_EQ(text.SelText(), "jedna");
  EXPECT_EQ(Find<QLabel>(dialog, "Label3")->text(), QStringLiteral("1"));
  EXPECT_EQ(Find<QLabel>(dialog, "Label5")->text(), QStringLiteral("0"));
  EXPECT_FALSE(term->isEnabled());
  // It moves off what it found.
  EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.geometry().intersects(match); }));
  Click(dialog, "Command2");
  EXPECT_EQ(Find<QLabel>(dialog, "Label5")->text(), QStringLiteral("10"));
  platform.answers = {Answer::kOk};
  Click(dialog, "Command2");
  EXPECT_TRUE(term->isEnabled());
  term->setText(QStringLiteral("x"));
  auto* history = Find<QListWidget>(dialog, "History");
  ASSERT_EQ(history->count(), 1);
  history->setFocus();                     // which makes the one entry current
  QTest::keyClick(history, Qt::Key_Down);  // the keyboard picks as the mouse does
  EXPECT_EQ(term->text(), QStringLiteral("jedna"));
  Click(dialog, "Command3");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(SearchWindowsTest, EnterGoesOnWithTheSearchAndEndsIt) {
  text.SetText("a a");
  Hledani dialog(
      text, platform, [] { return QRect(); }, nullptr);
  dialog.Present();
  auto* term = Find<QLineEdit>(dialog, "Find");
  const auto enter = [&dialog] { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); };
  term->setText(QStringLiteral("a"));
  enter();
  enter();  // on Command2, though Command4 is the default button
  EXPECT_EQ(text.SelStart(), 2U);
  platform.answers = {Answer::kOk};
  enter();
  EXPECT_EQ(platform.calls.back(), "message 0 \"Nenalezeno !\" \"Hledání\"");
  EXPECT_EQ(dialog.focusWidget(), term);  // for the next term
}

TEST_F(SearchWindowsTest, HledaniTakesALongSelectionOfSeveralLines) {
  std::string lines(40'000, 'x');
  lines += "\r\ny";
  text.SetText("x" + lines + "\r\n" + lines);
  text.Select(1, 1 + lines.size());
  Hledani dialog(
      text, platform, [] { return QRect(); }, nullptr);
  dialog.Present();
  Click(dialog, "Command1");
  EXPECT_EQ(text.SelText(), lines);
  Click(dialog, "Command2");
  EXPECT_EQ(text.SelText(), lines);
  EXPECT_EQ(text.SelEnd(), text.Size());
}

TEST_F(SearchWindowsTest, OneEnterTooManyDoesNotReplaceAll) {
  text.SetText("a");
  Zamena dialog(
      text, platform, [] { return QRect(); }, nullptr);
  FindFirst(dialog, "a", "b");
  platform.answers = {Answer::kOk};
  for (int times = 0; times < 2; ++times) QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(Find<QPushButton>(dialog, "Command6")->isEnabled());
  EXPECT_EQ(text.Text(), "b");
  EXPECT_EQ(dialog.focusWidget(), Find<TextBox>(dialog, "Find"));
}

TEST_F(SearchWindowsTest, ZamenaReplacesAndKeepsThePairs) {
  text.SetText("a\r\nb a\r\nb");
  Zamena dialog(
      text, platform, [] { return QRect(); }, nullptr);
  EXPECT_EQ(dialog.objectName(), QStringLiteral("Záměna"));
  dialog.Present();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  auto* term = Find<TextBox>(dialog, "Find");
  auto* change = Find<TextBox>(dialog, "Chage");
  EXPECT_EQ(ViewOf(term->Text()), "Text");
  EXPECT_EQ(ViewOf(change->Text()), "Zaměň"_w);
  EXPECT_EQ(ViewOf(term->SelText()), "Text");  // ready to be typed over
  QTest::keyClick(term, Qt::Key_Tab);
  EXPECT_EQ(ViewOf(change->SelText()), "Zaměň"_w);
  term->SetText("a\r\nb");
  change->SetText("c");
  Click(dialog, "Command1");
  EXPECT_EQ(text.SelText(), "a\r\nb");
  Click(dialog, "Command5");
  EXPECT_EQ(text.Text(), "c a\r\nb");
  EXPECT_EQ(Find<QLabel>(dialog, "Label5")->text(), QStringLiteral("1"));
  Click(dialog, "Command6");
  EXPECT_EQ(text.Text(), "c c");
  EXPECT_TRUE(text.Undo());  // nothing was asked before
  EXPECT_EQ(text.Text(), "c a\r\nb");
  EXPECT_TRUE(text.Redo());
  EXPECT_FALSE(Find<QPushButton>(dialog, "Command6")->isEnabled());
  EXPECT_FALSE(Find<QCheckBox>(dialog, "Rozlisovat")->isEnabled());  // required
  term->SetText("other");
  change->SetText("other");
  auto* list = Find<QListWidget>(dialog, "List1");
  list->setCurrentRow(0);
  Q_EMIT list->itemClicked(list->item(0));
  EXPECT_EQ(ViewOf(term->Text()), "a\r\nb");
  EXPECT_EQ(ViewOf(change->Text()), "c");
  EXPECT_EQ(Find<QListWidget>(dialog, "History")->currentRow(), 0);
}

TEST_F(SearchWindowsTest, TheFieldsAreUpToDateBehindAMessage) {
  text.SetText("a");
  Zamena dialog(
      text, platform, [] { return QRect(); }, nullptr);
  FindFirst(dialog, "a", "x");
  QString shown;
  platform.answers = {Answer::kOk};
  platform.on_message = [&] { shown = Find<QLabel>(dialog, "Label5")->text(); };
  Click(dialog, "Command5");
  EXPECT_EQ(shown, QStringLiteral("1"));
}

TEST_F(SearchWindowsTest, VyberSetsTheSelection) {
  text.SetText("0123456789");
  text.Select(2, 5);
  Vyber dialog(text, nullptr);
  EXPECT_EQ(dialog.objectName(), QStringLiteral("Výběr"));
  dialog.Present();
  auto* start = Find<QScrollBar>(dialog, "Start");
  auto* length = Find<QScrollBar>(dialog, "Delka");
  EXPECT_EQ(start->value(), 2);
  EXPECT_EQ(length->value(), 3);
  EXPECT_EQ(length->maximum(), 8);
  EXPECT_EQ(text.SelText(), "234");
  EXPECT_EQ(Find<QLabel>(dialog, "Label5")->text(), QStringLiteral("234"));
  length->setValue(8);
  start->setValue(6);  // cuts the length
  EXPECT_EQ(length->value(), 4);
  EXPECT_EQ(text.SelText(), "6789");
  EXPECT_EQ(Find<QLabel>(dialog, "Label2")->text(), QStringLiteral("4"));
}

TEST_F(SearchWindowsTest, VyberBeginsWithTheSelectionAtEachCommand) {
  Program program(platform);
  TextBuffer& document = Find<TextBox>(program.Main(), "Text1")->Buffer();
  document.SetText("0123456789");
  const std::pair<std::size_t, std::size_t> ranges[] = {{1, 1}, {2, 9}, {2, 4}, {5, 7}, {0, 10}, {10, 10}};
  for (const auto& [start, end] : ranges) {
    document.Select(start, end);
    Find<QAction>(program.Main(), "mnupresnvyb")->trigger();  // which is open already from the second time on
    const Vyber& dialog = program.Windows().Get<Vyber>();
    EXPECT_EQ(Find<QScrollBar>(dialog, "Start")->value(), static_cast<int>(start));
    EXPECT_EQ(Find<QScrollBar>(dialog, "Delka")->value(), static_cast<int>(end - start));
    EXPECT_EQ(document.SelStart(), start);
    EXPECT_EQ(document.SelEnd(), end);
    EXPECT_EQ(Find<QLabel>(dialog, "Label5")->text(), TextToQString(document.SelText()));
  }
}

}  // namespace
}  // namespace pelmar
