#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "platform/qt/controls/text_box.h"
#include "platform/qt/controls/text_box_accessible.h"
#include "platform/qt/convert.h"
#include "support/random_source.h"

namespace pelmar {
namespace {

// A screen reader that knows the text by what it is told alone. No test platform has one at work.
class Reader : public TextBoxTeller {
 public:
  explicit Reader(TextBox& box) : TextBoxTeller(box) {
    heard_ = {box.Buffer().OnChange([this](const TextChange& change) { Changed(change); }),
              box.Buffer().OnSelection([this] { CaretMoved(); })};
  }
  QString text;
  int caret = -1, begin = -1, end = -1;

 protected:
  [[nodiscard]] bool IsHeard() const override { return true; }
  void Send(QAccessibleEvent& event) override {
    if (const auto* update = dynamic_cast<QAccessibleTextUpdateEvent*>(&event)) {
      const auto removed = update->textRemoved().size();
      EXPECT_EQ(text.mid(update->changePosition(), removed), update->textRemoved());
      text.replace(update->changePosition(), removed, update->textInserted());
    } else if (const auto* insert = dynamic_cast<QAccessibleTextInsertEvent*>(&event)) {
      text.insert(insert->changePosition(), insert->textInserted());
    } else if (const auto* selection = dynamic_cast<QAccessibleTextSelectionEvent*>(&event)) {
      begin = selection->selectionStart();
      end = selection->selectionEnd();
    } else if (const auto* moved = dynamic_cast<QAccessibleTextCursorEvent*>(&event)) {
      caret = moved->cursorPosition();
    }
  }

 private:
  std::array<Listening, 2> heard_;
};

TEST(TextBoxTeller, WhatIsToldMakesUpTheText) {
  TextBox box;
  Reader reader(box);
  RandomSource random(1);
  TextBuffer& buffer = box.Buffer();
  buffer.SetText("the first that is heard: nobody knows what was before");
  for (int step = 0; step < 500; ++step) {
    const std::size_t from = random.Below(buffer.Size() + 1), to = random.Below(buffer.Size() + 1);
    if (step % 50 == 0) {
      buffer.SetText(random.Text(30, "ab\xE8\r\n"));
    } else if (random.Below(3) == 0) {
      const bool moves = from != buffer.Anchor() || to != buffer.Caret();
      buffer.Select(from, to);
      EXPECT_TRUE(!moves || reader.begin == box.SelStart()) << step;
      EXPECT_TRUE(!moves || reader.end == box.SelStart() + box.SelLength()) << step;
    } else if (random.Below(3) == 0) {
      buffer.Undo();
    } else {
      buffer.Replace(from, random.Below(5), random.Text(5, "ab\xE8\r\n"));
    }
    ASSERT_EQ(reader.text, TextToQString(buffer.Text())) << step;
    ASSERT_EQ(reader.caret, static_cast<int>(buffer.Caret())) << step;
  }
}

struct Accessible : testing::Test {
  Accessible() {
    box.resize(300, 200);
    box.show();
    QCoreApplication::processEvents();
  }
  TextBox box;
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&box);
  QAccessibleTextInterface* text = face->textInterface();
  QAccessibleEditableTextInterface* edit = face->editableTextInterface();
};

TEST_F(Accessible, TextIsReadByUnits) {
  box.SetText(
      "P\xF8"
      "i\r\ntwo words\r\n");
  EXPECT_EQ(face->role(), QAccessible::EditableText);
  EXPECT_TRUE(face->state().multiLine && face->state().editable);
  EXPECT_EQ(text->characterCount(), 16);
  EXPECT_EQ(text->text(0, 3), QStringLiteral("Při"));
  EXPECT_EQ(face->text(QAccessible::Value), QStringLiteral("Při\r\ntwo words\r\n"));
  const auto unit = [&](auto read, int offset, QAccessible::TextBoundaryType type) {
    int from = 0, to = 0;
    const QString found = (text->*read)(offset, type, &from, &to);
    EXPECT_EQ(found, text->text(from, to));
    return found.toStdString();
  };
  using Text = QAccessibleTextInterface;
  EXPECT_EQ(unit(&Text::textAtOffset, 10, QAccessible::WordBoundary), "words");
  EXPECT_EQ(unit(&Text::textAtOffset, 6, QAccessible::LineBoundary), "two words\r\n");
  EXPECT_EQ(unit(&Text::textBeforeOffset, 6, QAccessible::ParagraphBoundary), "Při\r\n");
  EXPECT_EQ(unit(&Text::textAfterOffset, 1, QAccessible::CharBoundary), "i");
  EXPECT_EQ(unit(&Text::textAfterOffset, 16, QAccessible::WordBoundary), "");
  const QRect cell = text->characterRect(6);
  EXPECT_EQ(text->offsetAtPoint(QPoint(cell.left() + 1, cell.center().y())), 6);
}

TEST_F(Accessible, TextIsChangedAndSelected) {
  box.SetText("one two");
  edit->replaceText(4, 7, QStringLiteral("ž\n"));
  edit->deleteText(0, 4);
  edit->insertText(0, QStringLiteral("x"));
  EXPECT_EQ(box.Text(), "x\x9E\r\n");
  text->setSelection(0, 0, 2);
  EXPECT_EQ(box.SelText(), "x\x9E");
  text->removeSelection(0);
  EXPECT_EQ(text->selectionCount(), 0);
  EXPECT_EQ(text->cursorPosition(), 2);
  box.setReadOnly(true);
  edit->insertText(0, QStringLiteral("no"));
  EXPECT_EQ(box.Text(), "x\x9E\r\n");
  EXPECT_TRUE(face->state().readOnly);
}

}  // namespace
}  // namespace pelmar
