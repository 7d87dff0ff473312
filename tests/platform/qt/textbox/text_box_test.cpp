#include "platform/qt/textbox/text_box.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QtWidgets>
#include <cmath>

#include "platform/qt/convert.h"
#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/textbox/text_box_menu.h"
#include "support/marked_text.h"
#include "support/random_source.h"

namespace pelmar {
namespace {

struct TextBoxTest : testing::Test {
  TextBoxTest() {
    window.resize(400, 300);
    box->setGeometry(0, 0, 400, 300);
    box->setBackgroundColor(Qt::white);
    box->setTextColor(Qt::black);
    window.show();
    window.activateWindow();
    box->setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QGuiApplication::clipboard()->clear();
  }

  void Put(const char* marked) const { PutMarked(box->Buffer(), marked); }
  [[nodiscard]] std::string Document() const { return Marked(box->Buffer()); }
  // Keys by their names, one after the other: "Ctrl+A X".
  void Press(const char* keys) const {
    for (const QString& key : QString::fromLatin1(keys).split(u' ')) QTest::keySequence(box, QKeySequence(key));
  }
  void ExpectKeys(std::initializer_list<std::tuple<const char*, const char*, const char*>> cases) const {
    for (const auto& [before, keys, after] : cases) {
      Put(before);
      Press(keys);
      EXPECT_EQ(Document(), after) << keys << " in " << before;
    }
  }
  // Sends an event of an input method: `shown` is still being composed, `typed` replaces `length` characters from
  // `from`, counted from the caret.
  void Compose(const char* shown, const char* typed = "", int from = 0, int length = 0) const {
    QInputMethodEvent event(QString::fromUtf8(shown), {});
    event.setCommitString(QString::fromUtf8(typed), from, length);
    QApplication::sendEvent(box, &event);
  }
  // A point in the character at this position. 3 is at the left edge of character 3, 3.7 is further to the right.
  [[nodiscard]] QPoint At(double place) const {
    const QRect cell = box->CharRect(static_cast<std::size_t>(place));
    return {cell.left() + 1 + static_cast<int>(std::fmod(place, 1) * cell.width()), cell.center().y()};
  }
  void Mouse(QTest::MouseAction action, double place, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QTest::mouseEvent(action, box->viewport(), button, modifiers, At(place));
  }
  void SetRows(int count) const { box->SetText(QByteArray(300, 'x').append("\r\n").repeated(count)); }
  [[nodiscard]] bool CaretInSight() const { return box->viewport()->rect().contains(box->CaretRect()); }

  QWidget window;
  TextBox* box = new TextBox(&window);
};

TEST_F(TextBoxTest, KeysTypeAndErase) {
  ExpectKeys({{"a|b", "Return Num+Enter Shift+Return", "a¶¶¶|b"},
              {"a[b|c", "X Tab", "ax\t|c"},
              {"a¶|b", "Backspace Shift+Backspace", "|b"},
              {"a|¶b", "Delete Delete", "a|"},
              {"a[bc|d", "Backspace", "a|d"},
              {"a[bc|d", "Delete", "a|d"},
              {"ab cd|¶", "Ctrl+Backspace", "ab |¶"},
              {"|ab cd¶", "Ctrl+Delete", "|cd¶"}});
}

TEST_F(TextBoxTest, KeysMoveTheCaretAndWithShiftSelect) {
  ExpectKeys({{"a|b¶c", "Right Right", "ab¶|c"},
              {"ab¶|c", "Left Left", "a|b¶c"},
              {"ab|c¶", "Home", "|abc¶"},
              {"a|bc¶", "End", "abc|¶"},
              {"ab |cd¶ef", "Ctrl+Left Ctrl+Left Ctrl+Right", "ab |cd¶ef"},
              {"ab|c¶d", "Down Up", "ab|c¶d"},
              {"a|b¶cd", "Ctrl+End", "ab¶cd|"},
              {"ab¶c|d", "Ctrl+Home", "|ab¶cd"},
              {"ab¶|c", "Shift+Left", "ab|¶[c"},
              {"ab|c", "Shift+End", "ab[c|"},
              {"ab|c", "Shift+Home", "|ab[c"},
              {"|ab cd", "Ctrl+Shift+Right", "[ab |cd"},
              {"a|b¶cd", "Shift+Down", "a[b¶c|d"}});
}

TEST_F(TextBoxTest, KeysUndoAndRedo) {
  ExpectKeys({{"a|", "X Alt+Backspace", "a|"},
              {"a|", "X Ctrl+Z", "a|"},
              {"a|", "X Alt+Backspace Alt+Shift+Backspace", "ax|"},
              {"a|", "X Ctrl+Z Ctrl+Y", "ax|"},
              {"a|", "X Ctrl+Z Ctrl+Shift+Z", "ax|"}});
}

TEST_F(TextBoxTest, KeysUseTheClipboard) {
  ExpectKeys({{"a[b|c", "Ctrl+C End Ctrl+V", "abcb|"},
              {"a[b|c", "Ctrl+Insert End Shift+Insert", "abcb|"},
              {"a[b|c", "Ctrl+X End Ctrl+V", "acb|"},
              {"a[b|c", "Shift+Delete End Shift+Insert", "acb|"},
              {"a¶b|", "Ctrl+A Ctrl+C End Ctrl+V", "a¶ba¶b|"}});
  QGuiApplication::clipboard()->setText(QStringLiteral(""));
  ExpectKeys({{"a[b|c", "Ctrl+V", "a[b|c"}});
}

TEST_F(TextBoxTest, LeavesCtrlAndLettersToTheMenu) {
  box->setStandardShortcuts(false);
  QGuiApplication::clipboard()->setText(QStringLiteral("no"));
  ExpectKeys({{"a[b|c", "Ctrl+A Ctrl+X Ctrl+V Ctrl+Z Ctrl+B Ctrl+Y F3", "a[b|c"},
              {"a[b|c", "Shift+Delete Shift+Insert Shift+Insert", "abb|c"}});
}

TEST_F(TextBoxTest, TypesCharactersOfAltGrButNotAccessKeys) {
  const std::tuple<Qt::KeyboardModifiers, const char*, const char*> cases[] = {
      {Qt::NoModifier, "ř", "ř|"},
      {Qt::NoModifier, "😀", "?|"},  // outside the code page
      {Qt::NoModifier, "\x1b", "|"},
      {Qt::ControlModifier | Qt::AltModifier, "@", "@|"},
      {Qt::AltModifier, "x", "|"}};
  for (const auto& [modifiers, typed, after] : cases) {
    Put("|");
    QKeyEvent event(QEvent::KeyPress, 0, modifiers, QString::fromUtf8(typed));
    QApplication::sendEvent(box, &event);
    EXPECT_EQ(Document(), after) << typed;
  }
}

TEST_F(TextBoxTest, ItsMenuActsAndGreysWhatIsImpossible) {
  const auto choose = [this](int entry) {
    const std::unique_ptr<QMenu> menu(BuildTextMenu(*box));
    menu->actions()[entry]->trigger();  // nothing happens for a grey entry
    return Document();
  };
  Put("a[b|c");
  QGuiApplication::clipboard()->setText(QStringLiteral("x"));
  EXPECT_EQ(choose(0), "a[b|c");  // nothing to undo
  EXPECT_EQ(choose(5), "ax|c");   // pastes
  EXPECT_EQ(choose(6), "ax|c");   // nothing is selected
  EXPECT_EQ(choose(0), "a[b|c");  // undoes
  EXPECT_EQ(choose(1), "ax|c");   // redoes
  EXPECT_EQ(choose(8), "[axc|");  // selects all
  EXPECT_EQ(choose(3), "|");      // cuts
  box->setReadOnly(true);
  Put("a|b");
  EXPECT_EQ(choose(2), "[ab|");
}

TEST_F(TextBoxTest, OnlyTheProgramChangesAReadOnlyText) {
  box->setReadOnly(true);
  QGuiApplication::clipboard()->setText(QStringLiteral("no"));
  ExpectKeys({{"a|b[c", "X Return Backspace Ctrl+X Ctrl+V Ctrl+Backspace Delete", "a|b[c"}});
  Compose("p", "q");
  Press("Ctrl+C");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("b"));
  box->SetSelText("x");
  EXPECT_EQ(Document(), "ax|c");
}

TEST_F(TextBoxTest, ClicksMoveTheCaretAndSelect) {
  constexpr auto kPress = QTest::MousePress, kMove = QTest::MouseMove, kRelease = QTest::MouseRelease,
                 kDouble = QTest::MouseDClick;
  const struct {
    const char *name, *before;
    std::vector<std::pair<QTest::MouseAction, double>> acts;  // each at the position of a character
    const char* after;
    Qt::MouseButton button = Qt::LeftButton;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  } cases[] = {
      {"a click in a selection", "[ab cd|", {{kPress, 1}, {kRelease, 1}}, "a|b cd"},
      {"a click with Shift", "a|b cd", {{kPress, 4}, {kRelease, 4}}, "a[b c|d", Qt::LeftButton, Qt::ShiftModifier},
      {"a right click beside a selection", "[ab| cd", {{kPress, 4}, {kRelease, 4}}, "[ab| cd", Qt::RightButton},
      {"a right click without a selection", "ab| cd", {{kPress, 4}, {kRelease, 4}}, "ab c|d", Qt::RightButton},
      {"a drag and a move after it", "|ab cd¶ef", {{kPress, 8}, {kMove, 1}, {kRelease, 1}, {kMove, 4}}, "a|b cd¶e[f"},
      {"a double click nearer to the blank, but still on the letter", "|ab cd¶ef", {{kDouble, 1.7}}, "[ab| cd¶ef"},
      {"a double click and a drag", "|ab cd¶ef", {{kDouble, 1}, {kMove, 4}, {kRelease, 4}}, "[ab cd|¶ef"},
      {"a click elsewhere after a double click", "|ab cd¶ef", {{kDouble, 1}, {kPress, 8}, {kRelease, 8}}, "ab cd¶e|f"},
      {"a third click and a drag", "|ab cd¶ef", {{kDouble, 8}, {kPress, 8}, {kMove, 1}}, "|ab cd¶ef["},
  };
  for (const auto& one : cases) {
    Put(one.before);
    for (const auto& [action, place] : one.acts) Mouse(action, place, one.button, one.modifiers);
    EXPECT_EQ(Document(), one.after) << one.name;
  }
}

TEST_F(TextBoxTest, ComposingReplacesTheSelectionAndTypesWhenItEnds) {
  Put("a[b|c");
  Compose("´");
  EXPECT_EQ(Document(), "a|c");  // text in composition isn't in the document yet
  Compose("", "é");
  EXPECT_EQ(Document(), "aé|c");
  Compose("", "XY", -2, 3);
  EXPECT_EQ(Document(), "XY|");
}

TEST_F(TextBoxTest, ScreenReadersReadSelectAndChangeTheText) {
  Put("ab cd¶e[f|");
  QAccessibleInterface* info = QAccessible::queryAccessibleInterface(box);
  QAccessibleTextInterface& reader = *info->textInterface();
  int start = 0, end = 0;
  reader.selection(0, &start, &end);
  EXPECT_EQ(reader.text(start, end), QStringLiteral("f"));
  EXPECT_EQ(reader.textAtOffset(4, QAccessible::WordBoundary, &start, &end), QStringLiteral("cd"));
  EXPECT_EQ(reader.textAtOffset(-2, QAccessible::ParagraphBoundary, &start, &end), QStringLiteral("ef"));
  EXPECT_EQ(reader.offsetAtPoint(reader.characterRect(3).center()), 3);
  reader.setSelection(0, 1, 4);
  EXPECT_EQ(Document(), "a[b c|d¶ef");
  info->editableTextInterface()->replaceText(5, -1, QStringLiteral("ř"));
  EXPECT_EQ(Document(), "ab cdř|");
  box->setReadOnly(true);
  info->editableTextInterface()->deleteText(0, -1);
  EXPECT_EQ(Document(), "ab cdř|");
}

// Drops the data. Returns whether the box accepted the drag.
bool Drop(TextBox& box, QPoint place, QMimeData& mime) {
  QDragEnterEvent enter(place, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QDropEvent drop(place, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(box.viewport(), &enter);
  QApplication::sendEvent(box.viewport(), &drop);
  return enter.isAccepted();
}

TEST_F(TextBoxTest, AcceptsDroppedTextButNoFileAndNothingIfReadOnly) {
  QMimeData text, file;
  text.setText(QStringLiteral("š\n"));
  file.setText(QStringLiteral("file:///tmp/x.htm"));
  file.setUrls({QUrl(QStringLiteral("file:///tmp/x.htm"))});
  Put("ab|");
  EXPECT_TRUE(Drop(*box, At(1), text));
  EXPECT_EQ(Document(), "a[š¶|b");
  EXPECT_FALSE(Drop(*box, At(0), file));
  box->setReadOnly(true);
  EXPECT_FALSE(Drop(*box, At(0), text));
  EXPECT_EQ(Document(), "a[š¶|b");
}

TEST_F(TextBoxTest, TabMovesTheFocusUnlessItIsTyped) {
  QLineEdit next(&window);
  next.show();
  QWidget::setTabOrder(box, &next);
  box->setReadOnly(true);
  Press("Tab");
  EXPECT_TRUE(next.hasFocus());
  box->setReadOnly(false);
  box->setTabChangesFocus(true);
  box->setFocus();
  Press("Tab");
  EXPECT_TRUE(next.hasFocus());
}

// True if a pixel of the rectangle differs from the background.
bool HasInk(const QImage& image, const QRect& rect) {
  QImage blank(rect.size(), image.format());
  blank.fill(Qt::white);
  return image.copy(rect) != blank;
}

constexpr Qt::AlignmentFlag kAlignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};

TEST_F(TextBoxTest, EveryCodeIsPaintedWhereTheLayoutSaysItIs) {
  std::string text;  // each code, followed by a blank, a tab or a letter
  for (int code = 0; code < 256; ++code)
    text += std::string(1, static_cast<char>(code * 101)) + " \tH"[code % 3] + (code % 40 == 39 ? "\r\n" : "");
  box->SetText(QByteArray::fromStdString(text));
  box->clearFocus();  // no caret
  for (std::size_t round = 0; round < 6; ++round) {
    SCOPED_TRACE(round);
    box->setFont(QFont(QLatin1String(round < 3 ? "DejaVu Sans" : "URW Gothic"), 9));
    box->setAlignment(kAlignments[round % 3]);
    const QImage image = box->viewport()->grab().toImage();
    int seen = 0;
    for (std::size_t pos = 0; pos < text.size(); ++pos) {
      const bool blank = text[pos] == ' ' || text[pos] == '\t' || text[pos] == '\xA0';
      // Strokes and accents may reach into the cells around.
      const QRect cell = box->CharRect(pos).adjusted(2 * blank, 4 * blank, -2 * blank, -4 * blank);
      if (pos % 82 >= 80 || !image.rect().contains(cell)) continue;  // line ends
      ++seen;
      ASSERT_NE(HasInk(image, cell), blank) << pos << " code " << int{text[pos]};
    }
    EXPECT_GT(seen, 150);
  }
}

TEST_F(TextBoxTest, OnlyTheSelectionAndItsLineBreakAreHighlighted) {
  Put("a[b¶|c");
  const QImage image = box->viewport()->grab().toImage();
  for (const auto& [pos, highlighted] : {std::pair(0U, false), {1U, true}, {2U, true}, {4U, false}}) {
    const QColor seen = image.pixelColor(box->CharRect(pos).topLeft() + QPoint(1, 0));
    EXPECT_EQ(seen == box->palette().color(QPalette::Highlight), highlighted) << pos;
  }
}

TEST_F(TextBoxTest, PartialRepaintsEqualAFullRepaintAndShowTheCaret) {
  RandomSource random(11);
  TextBuffer& buffer = box->Buffer();
  // The X makes sure that there is a step to undo. Without one, an undo wouldn't scroll to the caret.
  const char* const keys[] = {
      "X Alt+Backspace Alt+Backspace", "PgDown", "Shift+PgDown", "Return", "X", "PgUp", "Left", "Shift+Up"};
  const auto text = [&](std::size_t most) { return random.Text(most, "abcdefg mnop\t\x02\n\n"); };
  const auto place = [&] { return random.Below(buffer.Size() + 1); };
  const auto act = [&](std::size_t action) {
    if (action == 0) box->verticalScrollBar()->setValue(static_cast<int>(random.Below(900)));
    if (action == 1) buffer.Select(place(), place());
    if (action == 2) buffer.Replace(place(), random.Below(30), text(30));
    if (action == 3) Compose(random.Below(2) == 0 ? "´ě" : "");
    if (action > 3) Press(keys[random.Below(std::size(keys))]);
  };
  box->setFrameShape(QFrame::NoFrame);
  for (std::size_t round = 0; round < 360; ++round) {
    if (round % 60 == 0) {
      box->setAlignment(kAlignments[round / 60 % 3]);
      buffer.SetText(TextInCodePage(QString::fromStdString(text(3000))));
    }
    const std::size_t action = random.Below(6);
    act(action);
    QApplication::processEvents();
    ASSERT_TRUE(action == 0 || CaretInSight()) << "round " << round << " act " << action;
    const QImage seen = window.screen()->grabWindow(window.winId()).toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_TRUE(seen == window.grab().toImage().convertToFormat(QImage::Format_RGB32))
        << "round " << round << " act " << action;
  }
}

TEST_F(TextBoxTest, KeysScrollByPagesAndWithCtrlByRows) {
  const QScrollBar& down = *box->verticalScrollBar();
  SetRows(500);
  Press("PgDown PgDown");
  EXPECT_EQ(down.value() / down.singleStep(), (box->viewport()->height() / down.singleStep() - 1) * 2);
  Press("PgUp PgUp Ctrl+Down Ctrl+Down Ctrl+Up");
  EXPECT_EQ(down.value(), down.singleStep());
  EXPECT_EQ(box->SelStart(), 0);
}

TEST_F(TextBoxTest, AResizeKeepsTheTopRow) {
  SetRows(500);
  box->verticalScrollBar()->setValue(100 * box->verticalScrollBar()->singleStep());
  const std::size_t before = box->PlaceAt({0, 0}).pos;
  box->resize(200, 300);
  EXPECT_EQ(box->RowSpan(box->PlaceAt({0, 0}).pos).begin, box->RowSpan(before).begin);
}

TEST_F(TextBoxTest, FollowsItsBufferUntilItGetsAnother) {
  TextBuffer first, second;
  box->UseBuffer(first);
  const QSignalSpy changed(box, &TextBox::TextChanged), moved(box, &TextBox::SelectionChanged);
  first.Type("x");
  EXPECT_EQ(Document(), "x|");
  first.SetSelStart(0);
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(moved.count(), 2);
  box->UseBuffer(second);
  first.SetText("unseen");
  EXPECT_EQ(Document(), "|");
  EXPECT_EQ(changed.count(), 1);
  delete box;
  second.SetText("alone");  // the deleted box must not listen any more
}

TEST(MoveSelection, EqualsCutAndPasteAndIsUndoneInOneStep) {
  RandomSource random(1);
  for (int round = 0; round < 500; ++round) {
    const std::string text = random.Bytes(20);
    const std::size_t begin = random.Below(text.size() + 1), end = begin + random.Below(text.size() - begin + 1);
    const std::size_t to = random.Below(text.size() + 1);
    const bool copy = random.Below(2) == 0, stays = !copy && to >= begin && to <= end;
    const std::string moved = text.substr(begin, end - begin);
    std::string expected = text;
    if (!stays) expected.insert(to, moved);
    if (!stays && !copy) expected.erase(begin + (to < begin ? moved.size() : 0), moved.size());
    TextBuffer buffer;
    buffer.SetText(text);
    buffer.Select(begin, end);
    MoveSelection(buffer, to, copy);
    ASSERT_EQ(buffer.Text(), expected) << begin << " " << end << " " << to << copy;
    ASSERT_EQ(buffer.SelText(), moved);
    if (expected != text) buffer.Undo();
    ASSERT_EQ(buffer.Text() + std::string(buffer.SelText()), text + moved);
  }
}

}  // namespace
}  // namespace pelmar
