#include "platform/qt/controls/text_box.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <optional>

#include "platform/qt/clipboard_text.h"
#include "support/controls.h"
#include "support/random_source.h"

namespace pelmar {
namespace {

using namespace std::string_literals;

// Texts are written with a | at the caret and a [ at the other end of a selection.
class TextBoxTest : public testing::Test {
 protected:
  TextBoxTest() {
    window.resize(400, 300);
    box = new TextBox(&window);
    box->setGeometry(0, 0, 400, 300);
    box->setBackgroundColor(Qt::white);
    box->setTextColor(Qt::black);
    window.show();
    window.activateWindow();
    box->setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void Set(const std::string& marked) const {
    std::string text;
    std::size_t caret = 0;
    std::optional<std::size_t> anchor;
    for (const char ch : marked) {
      if (ch == '|') caret = text.size();
      if (ch == '[') anchor = text.size();
      if (ch != '|' && ch != '[') text += ch;
    }
    box->Buffer().SetText(text);
    box->Buffer().Select(anchor.value_or(caret), caret);
  }
  [[nodiscard]] std::string State() const {
    const TextBuffer& buffer = box->Buffer();
    std::string text = buffer.Text();
    text.insert(buffer.Caret(), "|");
    if (buffer.HasSelection()) text.insert(buffer.Anchor() + (buffer.Caret() < buffer.Anchor() ? 1 : 0), "[");
    return text;
  }
  void SetRows(int count, const std::string& row = "row") const {
    std::string rows;
    for (int i = 0; i < count; ++i) rows += row + "\r\n";
    Set("|" + rows);
  }
  void Keys(const char* keys) const { QTest::keySequence(box, QKeySequence(QLatin1String(keys))); }
  void Type(const QString& text, Qt::KeyboardModifiers modifiers = {}) const {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, modifiers, text);
    QApplication::sendEvent(box, &event);
  }
  [[nodiscard]] const std::string& Text() const { return box->Buffer().Text(); }
  // Just right of the left border, so that the caret goes before the character.
  [[nodiscard]] QPoint At(std::size_t pos) const {
    const QRect cell = box->CharRect(pos);
    return {cell.left() + 1, cell.center().y()};
  }
  void Click(std::size_t pos, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::mouseClick(box->viewport(), button, modifiers, At(pos));
  }
  bool Drop(const QMimeData& mime, QPoint at) const {
    QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box->viewport(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box->viewport(), &drop);
    return drop.isAccepted();
  }
  void Compose(const QString& preedit, const QString& commit, int from = 0, int length = 0) const {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit, from, length);
    QApplication::sendEvent(box, &event);
  }
  [[nodiscard]] bool CaretInSight() const { return box->viewport()->rect().contains(box->CaretRect()); }

  QWidget window;
  TextBox* box;
};

TEST_F(TextBoxTest, PropertiesAreTheTextAndSelectionByTheByte) {
  const QSignalSpy changed(box, &TextBox::TextChanged), moved(box, &TextBox::SelectionChanged);
  for (int round = 0; round < 2; ++round) box->setProperty("Text", QByteArray("p\xF8\r\nx\0y", 7));
  EXPECT_EQ(box->property("Text").toByteArray(), QByteArray("p\xF8\r\nx\0y", 7));
  box->setProperty("SelStart", 3);  // between CR and LF
  box->setProperty("SelLength", 3);
  EXPECT_EQ(box->property("SelText").toByteArray(), QByteArray("\nx\0", 3));
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(moved.count(), 3);
  box->setProperty("SelText", QByteArray("\n"));
  EXPECT_EQ(State(), "p\xF8\r\n|y");
  box->setProperty("SelStart", -5);
  box->setProperty("SelLength", 99);
  EXPECT_EQ(State(), "[p\xF8\r\ny|");
}

// ---- keyboard

TEST_F(TextBoxTest, KeysEditAndMove) {
  const struct {
    std::string before;
    const char* keys;
    std::string after;
  } cases[] = {
      {"a|b", "Return, Num+Enter, Shift+Return", "a\r\n\r\n\r\n|b"},
      {"[a|b", "Tab", "\t|b"},
      {"aa\r\n|b", "Backspace, Shift+Backspace", "a|b"},
      {"a|\r\n\0b"s, "Delete, Delete", "a|b"},
      {"a|bc[d", "Delete", "a|d"},
      {"one two|", "Ctrl+Backspace", "one |"},
      {"|one two", "Ctrl+Delete", "|two"},
      {"a|\r\n\x01 b", "Right, Right", "a\r\n\x01| b"},
      {"a\r\n|b", "Shift+Left", "a|\r\n[b"},
      {"|one two", "Ctrl+Right, Ctrl+Shift+Right", "one [two|"},
      {"one two|", "Ctrl+Left", "one |two"},
      {"ab\r\nc|d", "Home, Shift+End", "ab\r\n[cd|"},
      {"ab\r\nc|d", "Ctrl+Home, End", "ab|\r\ncd"},
      {"a|b\r\ncd", "Ctrl+Shift+End", "a[b\r\ncd|"},
      {"ab\r\nc|d\r\nef", "Down, Up, Shift+Up", "a|b\r\nc[d\r\nef"},
      {"a|b", "Ctrl+A", "[ab|"},
      {"|", "A, Return, Alt+Backspace", "|"},
      {"|", "A, Return, Ctrl+Z, Alt+Shift+Backspace", "a\r\n|"},
      {"|", "A, Ctrl+Z, Ctrl+Y", "a|"},
      {"|", "A, Ctrl+Z, Ctrl+Shift+Z", "a|"},
      {"a[b|c", "Ctrl+Insert, End, Shift+Insert", "abcb|"},
      {"a[b|c", "Shift+Delete, End, Ctrl+V", "acb|"},
      {"a[b|c", "Ctrl+C, Home, Ctrl+V", "b|abc"},
      {"a[\n\0\r\n|b"s, "Ctrl+X, Home, Ctrl+V", "\n\0\r\n|ab"s},
  };
  for (const auto& c : cases) {
    Set(c.before);
    Keys(c.keys);
    EXPECT_EQ(State(), c.after) << c.keys;
  }
}

TEST_F(TextBoxTest, TypedLettersTurnIntoThePage) {
  for (const char* text : {"ř", "€", "ж", "\x1b"}) Type(QString::fromUtf8(text));
  Type(QStringLiteral("@"), Qt::ControlModifier | Qt::AltModifier);  // AltGr
  Type(QStringLiteral("x"), Qt::AltModifier);                        // a menu's access key
  EXPECT_EQ(Text(), "\xF8\x80?@");
}

TEST_F(TextBoxTest, WithoutStandardShortcutsOnlyTheOldClipboardKeysWork) {
  box->setStandardShortcuts(false);
  Set("[ab|c");
  Keys("Ctrl+A, Ctrl+X, Ctrl+V, Ctrl+Z");
  Keys("Ctrl+B, Ctrl+Y, F3");
  EXPECT_EQ(State(), "[ab|c");
  Keys("Shift+Delete, Shift+Insert, Shift+Insert");
  EXPECT_EQ(State(), "abab|c");
}

TEST_F(TextBoxTest, ReadOnlyTextIsSelectedAndCopiedButNotChanged) {
  Set("[abc|\r\ndef");
  box->setReadOnly(true);
  Keys("Ctrl+C, X, Return, Backspace");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("abc"));
  Keys("Ctrl+X, Ctrl+V, Ctrl+Backspace, Delete");
  Compose(QStringLiteral("p"), QStringLiteral("q"));
  QMimeData mime;
  mime.setText(QStringLiteral("dropped"));
  EXPECT_FALSE(Drop(mime, At(1)));
  EXPECT_EQ(State(), "[abc|\r\ndef");
  EXPECT_FALSE(box->inputMethodQuery(Qt::ImEnabled).toBool());
  Keys("Shift+Down");
  EXPECT_EQ(State(), "[abc\r\ndef|");
  box->setProperty("SelText", QByteArray("x"));  // programs may
  EXPECT_EQ(Text(), "x");
}

TEST_F(TextBoxTest, TabGoesOnWhereItCanNotBeTyped) {
  QLineEdit before(&window), next(&window);
  before.show();
  next.show();
  QWidget::setTabOrder(&before, box);
  QWidget::setTabOrder(box, &next);
  Set("ab|");
  box->setTabChangesFocus(true);
  Keys("Tab");
  EXPECT_TRUE(next.hasFocus());
  box->setFocus();
  EXPECT_EQ(State(), "ab|");
  Keys("Shift+Backtab");
  EXPECT_TRUE(before.hasFocus());
  box->setTabSelectsAll(true);
  QTest::keyClick(&before, Qt::Key_Tab);
  EXPECT_EQ(State(), "[ab|");
}

// ---- what is seen

// True where a pixel of the rectangle differs from the background.
bool HasInk(const QImage& image, const QRect& rect) {
  for (int y = rect.top(); y <= rect.bottom(); ++y)
    for (int x = rect.left(); x <= rect.right(); ++x)
      if (image.pixelColor(x, y) != QColor(Qt::white)) return true;
  return false;
}

TEST_F(TextBoxTest, LettersArePaintedWhereTheLayoutSaysTheyAre) {
  RandomSource random(7);
  std::string text;
  for (int at = 0; at < 600; ++at) text += at % 97 == 96 ? "\r\n"s : std::string(1, " \t.HHH\x03\x03"[random.Below(8)]);
  for (const Qt::Alignment alignment : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
    for (const bool wrap : {true, false}) {
      box->setAlignment(alignment);
      box->setWordWrap(wrap);
      Set("|" + text);
      box->clearFocus();  // no caret
      const QImage image = box->viewport()->grab().toImage();
      int seen = 0;
      for (std::size_t pos = 0; pos < text.size(); ++pos) {
        // Antialiased strokes may touch the neighbouring pixel column.
        const QRect cell = box->CharRect(pos).adjusted(1, 0, -1, 0);
        if (!image.rect().contains(cell) || text[pos] == '\r' || text[pos] == '\n') continue;
        ++seen;
        ASSERT_EQ(HasInk(image, cell), text[pos] != ' ' && text[pos] != '\t') << pos << " wrap " << wrap;
      }
      EXPECT_GT(seen, 150);
    }
  }
}

TEST_F(TextBoxTest, EveryCodeButBlanksIsSeen) {
  std::string text;
  for (int code = 0; code < 256; ++code) text += std::string(1, static_cast<char>(code)) + "  ";
  box->clearFocus();
  for (const char* family : {"DejaVu Sans", "URW Gothic"}) {
    box->setFont(QFont(QString::fromLatin1(family), 9));
    box->SetText(QByteArray::fromStdString(text));
    const QImage image = box->viewport()->grab().toImage();
    for (int code = 0; code < 256; ++code) {
      const bool blank = code == '\t' || code == ' ' || code == 0xA0;
      EXPECT_TRUE(blank || HasInk(image, box->CharRect(static_cast<std::size_t>(code) * 3))) << family << code;
    }
  }
}

TEST_F(TextBoxTest, WhatIsRepaintedInPartsEqualsTheWholeWithTheCaretInSight) {
  RandomSource random(11);
  const auto text = [&](std::size_t most) { return random.Text(most, "abcdefg mnop\t\x02\n\n"); };
  const auto scroll = [&](QScrollBar* bar) { bar->setValue(static_cast<int>(random.Below(900))); };
  const char* const keys[] = {"Alt+Backspace", "PgDown", "Shift+PgDown", "Return", "X", "PgUp", "Left", "Shift+Up"};
  TextBuffer& buffer = box->Buffer();
  const std::pair<bool, std::function<void()>> steps[] = {
      {false, [&] { scroll(box->verticalScrollBar()); }},
      {false, [&] { scroll(box->horizontalScrollBar()); }},
      {true, [&] { buffer.Select(random.Below(buffer.Size() + 1), random.Below(buffer.Size() + 1)); }},
      {true, [&] { buffer.Replace(random.Below(buffer.Size() + 1), random.Below(30), text(30)); }},
      {true, [&] { Compose(random.Below(2) == 0 ? QString() : QStringLiteral("´ě"), {}); }},
      {true, [&] { Keys(keys[random.Below(std::size(keys))]); }},
      {true, [&] { Keys(keys[random.Below(std::size(keys))]); }},
  };
  constexpr Qt::Alignment alignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
  box->setFrameShape(QFrame::NoFrame);
  for (int round = 0; round < 6; ++round) {
    box->setWordWrap(round % 2 == 0);
    box->setAlignment(alignments[round % 3]);
    buffer.SetText(PageText(QString::fromStdString(text(3000))));
    for (int number = 0; number < 60; ++number) {
      SCOPED_TRACE(testing::Message() << "round " << round << " step " << number);
      const auto& [reveals, step] = steps[random.Below(std::size(steps))];
      step();
      ASSERT_TRUE(!reveals || CaretInSight());
      QApplication::processEvents();
      const QImage seen = window.screen()->grabWindow(window.winId()).toImage().convertToFormat(QImage::Format_RGB32);
      const QImage whole = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
      ASSERT_TRUE(seen == whole);
    }
  }
}

TEST_F(TextBoxTest, ScrollsByPagesAndKeepsTheTopInAnotherWidth) {
  SetRows(500, std::string(300, 'x'));
  box->setWordWrap(false);
  EXPECT_GT(box->horizontalScrollBar()->maximum(), 0);
  box->setWordWrap(true);
  EXPECT_EQ(box->horizontalScrollBar()->maximum(), 0);
  Keys("PgDown, PgDown");
  EXPECT_GT(box->verticalScrollBar()->value(), 300);
  Keys("PgUp, PgUp");
  EXPECT_EQ(box->verticalScrollBar()->value(), 0);
  EXPECT_EQ(box->Buffer().Caret(), 0u);
  Keys("Ctrl+Down, Ctrl+Down, Ctrl+Up");
  EXPECT_EQ(box->verticalScrollBar()->value(), box->verticalScrollBar()->singleStep());

  box->verticalScrollBar()->setValue(box->verticalScrollBar()->maximum() / 2);
  const std::size_t top = box->PlaceAt({0, 0}).pos;
  box->resize(250, 300);
  const TextSpan row = box->RowSpan(box->PlaceAt({0, 0}).pos);
  EXPECT_TRUE(row.begin <= top && top < row.end) << row.begin << " " << top;
}

TEST_F(TextBoxTest, HiddenBoxesFollowWhenTheyAreShown) {
  window.hide();
  Set("|one\r\n");
  for (int i = 0; i < 300; ++i) box->Buffer().Replace(0, 0, "row\r\n");
  box->SetSelStart(100000);
  window.show();
  EXPECT_TRUE(CaretInSight());
  EXPECT_EQ(box->PlaceAt(box->CaretRect().center()).pos, box->Buffer().Size());

  TextBox never_shown;
  never_shown.resize(300, 200);
  never_shown.SetText("one two\r\nthree");
  QTest::keyClick(&never_shown, Qt::Key_End);
  EXPECT_EQ(never_shown.SelStart(), 7);
  EXPECT_EQ(never_shown.grab().size(), QSize(300, 200));
}

TEST_F(TextBoxTest, CaretStaysInSightWhereItShall) {
  for (const bool stays : {false, true}) {
    box->SetCaretStays(stays);
    box->setFocus();
    box->clearFocus();
    box->SetText("      ");
    box->Buffer().ReplaceSelection("   ");  // as a tool window does
    const QImage image = box->viewport()->grab().toImage();
    EXPECT_EQ(HasInk(image, box->CaretRect()), stays);
    EXPECT_NE(image.pixelColor(box->CaretRect().center()), QColor(Qt::black));  // the full one is of the active window
  }
}

// ---- the buffer

TEST_F(TextBoxTest, TwoBoxesShowOneBufferAndMayGoBeforeIt) {
  TextBuffer buffer, second;
  auto other = std::make_unique<TextBox>();
  const QSignalSpy told(box, &TextBox::TextChanged);
  box->UseBuffer(buffer);
  other->UseBuffer(buffer);
  other->show();
  QTest::keyClick(other.get(), Qt::Key_X);
  EXPECT_EQ(State(), "x|");
  EXPECT_EQ(told.count(), 1);
  other.reset();
  box->UseBuffer(second);
  buffer.SetText("unseen");
  EXPECT_EQ(told.count(), 1);
  EXPECT_EQ(Text(), "");
  box->UseBuffer(buffer);
  box->SetText("again");
  EXPECT_EQ(told.count(), 2);
  delete box;
  buffer.SetText("alone");
}

TEST_F(TextBoxTest, FollowsListenersThatChangeTheTextThemselves) {
  TextBuffer buffer;
  bool cut = true;
  const Listening heard = buffer.OnChange([&](const TextChange&) {  // heard before the box hears
    if (!std::exchange(cut, true)) buffer.Replace(0, 3, "x\r\ny\r\nz");
  });
  box->UseBuffer(buffer);
  buffer.SetText("one\r\ntwo");
  const QSignalSpy told(box, &TextBox::TextChanged);
  cut = false;
  buffer.Replace(0, 3, "\r\n1");
  EXPECT_EQ(told.count(), 2);
  EXPECT_EQ(Text(), "x\r\ny\r\nz\r\ntwo");
  for (std::size_t line = 0; line < buffer.LineCount(); ++line)
    EXPECT_EQ(box->RowSpan(buffer.LineStart(line)).begin, buffer.LineStart(line));
}

// ---- mouse

TEST_F(TextBoxTest, MouseSelectsCharactersWordsAndLines) {
  QWidget* const area = box->viewport();
  Set("|one two\r\nthree four\r\nfive");
  Click(4);
  EXPECT_EQ(State(), "one |two\r\nthree four\r\nfive");
  Click(15, Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(State(), "one [two\r\nthree |four\r\nfive");
  QTest::mousePress(area, Qt::LeftButton, {}, At(22));
  QTest::mouseMove(area, At(10));
  QTest::mouseRelease(area, Qt::LeftButton);
  EXPECT_EQ(State(), "one two\r\nt|hree four\r\nf[ive");

  Set("|" + Text());
  QTest::mouseDClick(area, Qt::LeftButton, {}, At(10));
  EXPECT_EQ(box->SelText(), "three");
  QTest::mousePress(area, Qt::LeftButton, {}, At(10));
  EXPECT_EQ(box->SelText(), "three four");
  QTest::mouseMove(area, At(1));
  QTest::mouseRelease(area, Qt::LeftButton, {}, At(1));
  EXPECT_EQ(State(), "|one two\r\nthree four[\r\nfive");
}

TEST_F(TextBoxTest, MouseHeldBelowTheWindowScrollsAndSelects) {
  SetRows(200);
  const QPoint below(10, box->viewport()->height() + 500);
  QTest::mousePress(box->viewport(), Qt::LeftButton, {}, At(0));
  QTest::mouseMove(box->viewport(), below);
  EXPECT_TRUE(QTest::qWaitFor([&] { return box->Buffer().Caret() == Text().size(); }));
  QTest::mouseRelease(box->viewport(), Qt::LeftButton, {}, below);
  EXPECT_EQ(box->verticalScrollBar()->value(), box->verticalScrollBar()->maximum());
}

TEST_F(TextBoxTest, WheelScrollsByRowsOrExactPixels) {
  SetRows(200);
  EXPECT_TRUE(RollWheel(*box->viewport(), {}, {0, -120}));
  const int rows = QApplication::wheelScrollLines() * box->verticalScrollBar()->singleStep();
  EXPECT_EQ(box->verticalScrollBar()->value(), rows);
  if (QGuiApplication::platformName() != QStringLiteral("xcb")) {
    EXPECT_TRUE(RollWheel(*box->viewport(), {0, -7}, {0, -56}));
    EXPECT_EQ(box->verticalScrollBar()->value(), rows + 7);
  }
  EXPECT_FALSE(RollWheel(*box->viewport(), {}, {0, -120}, Qt::ControlModifier));  // a window may zoom
}

TEST_F(TextBoxTest, FingersScroll) {
  SetRows(200);
  QPointingDevice* screen = QTest::createTouchDevice();
  QTest::touchEvent(box->viewport(), screen).press(0, QPoint(50, 250), box->viewport());
  for (int y = 240; y > 40; y -= 10) QTest::touchEvent(box->viewport(), screen).move(0, QPoint(50, y), box->viewport());
  QTest::touchEvent(box->viewport(), screen).release(0, QPoint(50, 40), box->viewport());
  EXPECT_TRUE(QTest::qWaitFor([&] { return box->verticalScrollBar()->value() > 0; }));
  EXPECT_EQ(State().front(), '|');
}

TEST_F(TextBoxTest, RightButtonKeepsTheSelectionAndMenusMayBeTheWindows) {
  Set("one [two| three");
  Click(10, Qt::RightButton);
  EXPECT_EQ(State(), "one [two| three");  // for the menu to work on
  box->SetSelLength(0);
  Click(10, Qt::RightButton);
  EXPECT_EQ(State(), "one two th|ree");

  QSignalSpy asked(box, &QWidget::customContextMenuRequested);
  box->setContextMenuPolicy(Qt::CustomContextMenu);
  Keys("Shift+F10");
  EXPECT_EQ(asked.count(), 1);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  box->setContextMenuPolicy(Qt::DefaultContextMenu);
  QGuiApplication::clipboard()->clear();
  Keys("Ctrl+A, Shift+F10");
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  std::string items;
  for (const QAction* item : menu->actions())
    items += (item->isEnabled() ? "" : "(grey) ") + item->text().replace(u'\t', u' ').toStdString() + "\n";
  EXPECT_EQ(items,
            "(grey) &Zpět Alt+Backspace\n(grey) Z&novu Alt+Shift+Backspace\n\nVyj&mout Ctrl+X\n&Kopírovat Ctrl+C\n"
            "(grey) &Vložit Ctrl+V\n&Smazat Del\n\nVybrat vš&e Ctrl+A\n");
  menu->actions().at(6)->trigger();
  menu->close();
  EXPECT_EQ(Text(), "");
}

TEST_F(TextBoxTest, DroppedTextGoesInAndFilesDoNot) {
  Set("|one two");
  QMimeData text, files;
  text.setText(QStringLiteral("š\n"));
  files.setUrls({QUrl(QStringLiteral("file:///tmp/x.htm"))});
  files.setText(QStringLiteral("file:///tmp/x.htm"));
  EXPECT_TRUE(Drop(text, At(4)));
  EXPECT_FALSE(Drop(files, At(1)));
  EXPECT_EQ(State(), "one [\x9A\r\n|two");
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
    if (expected == text) continue;
    buffer.Undo();
    ASSERT_EQ(buffer.Text(), text);
    ASSERT_EQ(buffer.SelText(), moved);
  }
}

// ---- input methods

TEST_F(TextBoxTest, ComposedTextIsShownButNotTextUntilItIsCommitted) {
  Set("one [two|");
  const QRect before = box->CharRect(4);
  Compose(QStringLiteral("´"), {});
  EXPECT_EQ(Text(), "one ");  // composing replaces the selection
  EXPECT_GT(box->CaretRect().left(), before.left());
  Compose({}, QStringLiteral("é"));
  EXPECT_EQ(State(), "one \xE9|");
  Compose({}, QStringLiteral("ONE"), -5, 3);
  EXPECT_EQ(State(), "ONE| \xE9");
}

TEST_F(TextBoxTest, InputMethodsSeeTheTextAroundTheCaretOnly) {
  const std::string most(512, 'a');
  Set("first\r\n" + std::string(4000, 'b') + most + "[\xE9|" + most + std::string(4000, 'b') + "\r\nlast");
  const auto answer = [&](Qt::InputMethodQuery query) { return box->inputMethodQuery(query); };
  const std::string before = most.substr(1);
  EXPECT_EQ(answer(Qt::ImSurroundingText).toString().toStdString(), before + "é" + most);
  EXPECT_EQ(answer(Qt::ImTextBeforeCursor).toString().toStdString(), before + "é");
  EXPECT_EQ(answer(Qt::ImTextAfterCursor).toString().toStdString(), most);
  EXPECT_EQ(answer(Qt::ImCursorPosition).toInt(), 512);
  EXPECT_EQ(answer(Qt::ImAnchorPosition).toInt(), 511);
  EXPECT_EQ(answer(Qt::ImCursorRectangle).toRect(), box->CaretRect().translated(box->viewport()->pos()));
}

}  // namespace
}  // namespace pelmar
