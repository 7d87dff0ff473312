#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "platform/qt/controls/text_box.h"
#include "platform/qt/controls/text_box_accessible.h"

namespace pelmar {
namespace {

// Writes down what would be told, one line for each event. No test platform has assistive technology at work.
class WritingTeller : public TextBoxTeller {
 public:
  explicit WritingTeller(TextBox& box) : TextBoxTeller(box) {
    heard_ = {box.Buffer().OnChange([this](const TextChange& change) { Changed(change); }),
              box.Buffer().OnSelection([this] { CaretMoved(); })};
  }
  std::vector<std::string> told;

 private:
  std::array<Listening, 2> heard_;

 protected:
  [[nodiscard]] bool IsHeard() const override { return true; }
  void Send(QAccessibleEvent& event) override {
    if (const auto* update = dynamic_cast<QAccessibleTextUpdateEvent*>(&event)) {
      told.push_back(std::to_string(update->changePosition()) + " -" + update->textRemoved().toStdString() + " +" +
                     update->textInserted().toStdString());
    } else if (const auto* insert = dynamic_cast<QAccessibleTextInsertEvent*>(&event)) {
      told.push_back("inserted " + insert->textInserted().toStdString());
    } else if (const auto* selection = dynamic_cast<QAccessibleTextSelectionEvent*>(&event)) {
      told.push_back("selection " + std::to_string(selection->selectionStart()) + "-" +
                     std::to_string(selection->selectionEnd()));
    } else if (const auto* caret = dynamic_cast<QAccessibleTextCursorEvent*>(&event)) {
      told.push_back("caret " + std::to_string(caret->cursorPosition()));
    }
  }
};

struct Accessible : testing::Test {
  Accessible() {
    box.resize(300, 200);
    box.show();
    QCoreApplication::processEvents();
    face = QAccessible::queryAccessibleInterface(&box);
    text = face == nullptr ? nullptr : face->textInterface();
    edit = face == nullptr ? nullptr : face->editableTextInterface();
  }
  TextBox box;
  QAccessibleInterface* face;
  QAccessibleTextInterface* text;
  QAccessibleEditableTextInterface* edit;
};

TEST_F(Accessible, TextIsReadByUnits) {
  ASSERT_NE(text, nullptr);
  box.SetText(
      "P\xF8"
      "i\r\ntwo words\r\n");
  EXPECT_EQ(face->role(), QAccessible::EditableText);
  EXPECT_TRUE(face->state().multiLine && face->state().editable);
  EXPECT_EQ(text->characterCount(), 16);
  EXPECT_EQ(text->text(0, 3), QStringLiteral("Při"));
  EXPECT_EQ(face->text(QAccessible::Value), QStringLiteral("Při\r\ntwo words\r\n"));
  int from = 0;
  int to = 0;
  EXPECT_EQ(text->textAtOffset(10, QAccessible::WordBoundary, &from, &to), QStringLiteral("words"));
  EXPECT_EQ(from, 9);
  EXPECT_EQ(to, 14);
  EXPECT_EQ(text->textAtOffset(6, QAccessible::LineBoundary, &from, &to), QStringLiteral("two words\r\n"));
  EXPECT_EQ(text->textBeforeOffset(6, QAccessible::LineBoundary, &from, &to), QStringLiteral("Při\r\n"));
  EXPECT_EQ(text->textAfterOffset(1, QAccessible::CharBoundary, &from, &to), QStringLiteral("i"));
  EXPECT_EQ(text->textAfterOffset(16, QAccessible::WordBoundary, &from, &to), QString());
  const QRect cell = text->characterRect(6);
  EXPECT_EQ(text->offsetAtPoint(QPoint(cell.left() + 1, cell.center().y())), 6);
}

TEST_F(Accessible, TextIsChangedAndSelected) {
  ASSERT_NE(edit, nullptr);
  box.SetText("one two");
  edit->replaceText(4, 7, QStringLiteral("ž\n"));
  EXPECT_EQ(box.Text(), "one \x9E\r\n");
  edit->deleteText(0, 4);
  edit->insertText(0, QStringLiteral("x"));
  EXPECT_EQ(box.Text(), "x\x9E\r\n");
  text->setSelection(0, 0, 2);
  EXPECT_EQ(box.SelText(), "x\x9E");
  int from = 0;
  int to = 0;
  text->selection(0, &from, &to);
  EXPECT_EQ(to, 2);
  text->removeSelection(0);
  EXPECT_EQ(text->selectionCount(), 0);
  EXPECT_EQ(text->cursorPosition(), 2);
  box.setReadOnly(true);
  edit->insertText(0, QStringLiteral("no"));
  EXPECT_EQ(box.Text(), "x\x9E\r\n");
  EXPECT_TRUE(face->state().readOnly);
}

TEST_F(Accessible, ChangesAreTold) {
  WritingTeller teller(box);
  box.SetText("abc");  // the first that is heard: nobody knows what was before
  box.SetSelStart(1);
  box.SetSelLength(2);
  box.SetSelText("xy\r\n");
  box.SetText("");
  EXPECT_EQ(teller.told,
            (std::vector<std::string>{"inserted abc", "caret 0", "selection 1-1", "caret 1", "selection 1-3", "caret 3",
                                      "1 -bc +xy\r\n", "caret 5", "0 -axy\r\n +", "caret 0"}));
}

}  // namespace
}  // namespace pelmar
