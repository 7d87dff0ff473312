#include "platform/qt/textbox/text_box.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QtWidgets>
#include <cmath>

#include "platform/qt/convert.h"
#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/textbox/text_box_accessible.h"
#include "support/controls.h"
#include "support/marked_text.h"
#include "support/random_source.h"
#include "support/temp_folder.h"

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
  }

  // A | stands at the caret and a [ at the other end of a selection.
  // Or else the pop-up menu that shows, with - before what can't be chosen.
  [[nodiscard]] std::string State() const {
    if (auto* menu = QApplication::activePopupWidget()) {
      QString items;
      for (const QAction* item : menu->actions()) items += (item->isEnabled() ? u'|' : u'-') + item->text();
      menu->close();
      return Utf8FromQString(items.remove(u'&').replace(u'\t', u' ').trimmed());
    }
    return Marked(box->Buffer());
  }
  void SetRows(int count) const { box->SetText(QByteArray(300, 'x').append("\r\n").repeated(count)); }
  // Just right of the left border, so that the caret goes before the character, or that far into it.
  [[nodiscard]] QPoint At(double place) const {
    const QRect cell = box->CharRect(static_cast<std::size_t>(place));
    return {cell.left() + 1 + static_cast<int>(std::fmod(place, 1) * cell.width()), cell.center().y()};
  }
  [[nodiscard]] bool CaretInSight() const { return box->viewport()->rect().contains(box->CaretRect()); }
  // Words: "Ctrl+A" are keys; "'x" is a typed letter, "Alt+'x" one with that key; "click@4" the mouse before a
  // character, "S+click@4" with Shift, "R+click@4" its right button; "drop@4" brings a text there, "urls@4" a file;
  // "~x/y/-3/2" is an input method that shows x and types y in place of two characters, three before the caret;
  // "readOnly=1" sets a property; "item=6" chooses from the menu.
  void Do(const char* steps) const {
    const QStringList actions = QStringLiteral("press release click double move").split(u' ');
    for (const QString& step : QString::fromUtf8(steps).split(u' ')) {
      const QStringList mouse = step.split(u'@'), letter = step.split(u'\''), set = step.split(u'=');
      const QPoint place = At(mouse.last().toDouble());
      if (step.startsWith(u'~')) {
        const QStringList parts = step.mid(1).split(u'/') + QStringList(3);
        QInputMethodEvent event(parts[0], {});
        event.setCommitString(parts[1], parts[2].toInt(), parts[3].toInt());
        QApplication::sendEvent(box, &event);
      } else if (letter.size() == 2) {
        const QString typed = letter[1] == QStringLiteral("ESC") ? QStringLiteral("\x1b") : letter[1];
        QKeyEvent event(QEvent::KeyPress, 0, QKeySequence(letter[0] + u'A')[0].keyboardModifiers(), typed);
        QApplication::sendEvent(box, &event);
      } else if (set[0] == QStringLiteral("item")) {
        QApplication::activePopupWidget()->actions().at(set[1].toInt())->trigger();
        QApplication::activePopupWidget()->close();
      } else if (set.size() == 2) {
        box->setProperty(set[0].toLatin1(), set[1].toUtf8());
      } else if (mouse[0] == QStringLiteral("drop") || mouse[0] == QStringLiteral("urls")) {
        QMimeData mime;
        mime.setText(QStringLiteral("š\n"));
        if (mouse[0] == QStringLiteral("urls")) mime.setUrls({QUrl(QStringLiteral("file:///tmp/x.htm"))});
        QDragEnterEvent enter(place, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(place, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box->viewport(), &enter);
        if (enter.isAccepted()) QApplication::sendEvent(box->viewport(), &drop);
      } else if (mouse.size() == 2) {
        const auto action = static_cast<QTest::MouseAction>(actions.indexOf(mouse[0].section(u'+', -1)));
        QTest::mouseEvent(action, box->viewport(), step[0] == u'R' ? Qt::RightButton : Qt::LeftButton,
                          step[0] == u'S' ? Qt::ShiftModifier : Qt::NoModifier, place);
      } else {
        QTest::keySequence(box, QKeySequence(step));
      }
    }
  }

  QWidget window;
  TextBox* box = new TextBox(&window);
};

TEST_F(TextBoxTest, KeysMouseAndInputMethodsEditMoveAndSelect) {
  for (const std::string& line : KeptLines(QT_TESTCASE_SOURCEDIR "/platform/qt/textbox/text_box.txt")) {
    box->setReadOnly(false);
    box->setStandardShortcuts(true);
    box->SetText("ab cd\r\nef");
    box->SetSelStart(4);
    QGuiApplication::clipboard()->clear();
    const std::size_t arrow = line.find(" -> ");
    Do(line.substr(0, arrow).c_str());
    EXPECT_EQ(State(), line.substr(arrow + 4)) << line;
  }
}

TEST_F(TextBoxTest, TabGoesOnWhereItCanNotBeTypedAndSelectsAllWhereItShall) {
  QLineEdit before(&window), next(&window);
  for (QWidget* field : {&before, &next}) field->show();
  QWidget::setTabOrder(&before, box);
  QWidget::setTabOrder(box, &next);
  box->SetText("ab");
  for (const char* steps : {"tabChangesFocus=1 Tab", "tabChangesFocus=0 readOnly=1 Tab"}) {
    box->setFocus();
    Do(steps);
    EXPECT_TRUE(next.hasFocus()) << steps;
  }
  for (const auto& [steps, after] :
       {std::pair("tabSelectsAll=0 Shift+Backtab", "|ab"), {"tabSelectsAll=1 Shift+Backtab", "[ab|"}}) {
    Do(steps);
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_EQ(State(), after);
  }
}

// True where a pixel of the rectangle differs from the background.
bool HasInk(const QImage& image, const QRect& rect) {
  for (int y = rect.top(); y <= rect.bottom(); ++y)
    for (int x = rect.left(); x <= rect.right(); ++x)
      if (image.pixelColor(x, y) != QColor(Qt::white)) return true;
  return false;
}

TEST_F(TextBoxTest, EveryCodeIsPaintedWhereTheLayoutSaysItIs) {
  std::string text;  // each code with a blank or a letter behind it
  for (int code = 0; code < 256; ++code)
    text += std::string(1, static_cast<char>(code * 101)) + " \tH"[code % 3] + (code % 40 == 39 ? "\r\n" : "");
  box->SetText(QByteArray::fromStdString(text));
  EXPECT_EQ(box->Text().toStdString(), text);
  box->clearFocus();  // no caret
  for (std::size_t round = 0; round < 12; ++round) {
    SCOPED_TRACE(round);
    box->setFont(QFont(QLatin1String(round < 6 ? "DejaVu Sans" : "URW Gothic"), 9));
    box->setAlignment(std::array{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter}[round % 3]);
    box->setWordWrap(round % 2 == 0);
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

TEST_F(TextBoxTest, WhatIsRepaintedInPartsEqualsTheWholeWithTheCaretInSight) {
  RandomSource random(11);
  TextBuffer& buffer = box->Buffer();
  const auto text = [&](std::size_t most) { return random.Text(most, "abcdefg mnop\t\x02\n\n"); };
  const auto place = [&] { return random.Below(buffer.Size() + 1); };
  const auto any = [&] { return static_cast<int>(random.Below(900)); };
  const char* const keys[] = {"Alt+Backspace", "PgDown", "Shift+PgDown", "Return", "X", "PgUp", "Left", "Shift+Up"};
  const std::function<void()> steps[] = {
      [&] { box->verticalScrollBar()->setValue(any()); }, [&] { box->horizontalScrollBar()->setValue(any()); },
      [&] { buffer.Select(place(), place()); },           [&] { buffer.Replace(place(), random.Below(30), text(30)); },
      [&] { Do(any() % 2 == 0 ? "~´ě" : "~"); },          [&] { Do(keys[random.Below(std::size(keys))]); },
      [&] { Do(keys[random.Below(std::size(keys))]); },
  };
  box->setFrameShape(QFrame::NoFrame);
  for (std::size_t round = 0; round < 360; ++round) {
    if (round % 60 == 0) {
      box->setWordWrap(round % 120 == 0);
      box->setAlignment(std::array{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter}[round / 60 % 3]);
      buffer.SetText(PageText(QString::fromStdString(text(3000))));
    }
    const std::size_t step = random.Below(std::size(steps));
    steps[step]();
    ASSERT_TRUE(step < 2 || CaretInSight()) << round << " step " << step;
    QApplication::processEvents();
    const QImage seen = window.screen()->grabWindow(window.winId()).toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_TRUE(seen == window.grab().toImage().convertToFormat(QImage::Format_RGB32)) << round << " step " << step;
  }
}

TEST_F(TextBoxTest, ScrollsByPagesKeepsTheTopInAnotherWidthAndFollowsWhenItIsShown) {
  QScrollBar& down = *box->verticalScrollBar();
  box->setWordWrap(true);
  SetRows(500);
  EXPECT_EQ(box->horizontalScrollBar()->maximum(), 0);
  Do("PgDown PgDown");
  EXPECT_EQ(down.value() / down.singleStep(), (box->viewport()->height() / down.singleStep() - 1) * 2);
  Do("PgUp PgUp Ctrl+Down Ctrl+Down Ctrl+Up");
  EXPECT_EQ(box->Buffer().Caret(), 0u);
  EXPECT_EQ(down.value(), down.singleStep());
  down.setValue(down.maximum() / 2);
  const std::size_t top = box->PlaceAt({0, 0}).pos;
  box->resize(250, 300);
  const TextSpan row = box->RowSpan(box->PlaceAt({0, 0}).pos);
  EXPECT_TRUE(row.begin <= top && top < row.end) << row.begin << " " << top;
  window.hide();
  box->SetSelStart(1'000'000);
  window.show();
  EXPECT_TRUE(CaretInSight());
  EXPECT_EQ(box->PlaceAt(box->CaretRect().center()).pos, box->Buffer().Size());
  TextBox never_shown;
  never_shown.SetText("one two\r\nthree");
  QTest::keyClick(&never_shown, Qt::Key_End);
  EXPECT_EQ(never_shown.SelStart(), 7);
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
  box->SetText("i\r\n\r\ni");
  Do("Ctrl+A");
  for (const std::size_t line_break : {1, 3})  // selected ones show as a blank
    EXPECT_TRUE(HasInk(box->viewport()->grab().toImage(), box->CharRect(line_break).translated(1, 0)));
}

TEST_F(TextBoxTest, ShowsABufferThatOthersChangeToo) {
  TextBuffer buffer, second;
  const Listening heard = buffer.OnChange([&](const TextChange& change) {  // heard before the box hears
    if (change.removed == 1) buffer.Replace(0, 3, "x\r\ny\r\nz");
  });
  const QSignalSpy changed(box, &TextBox::TextChanged), moved(box, &TextBox::SelectionChanged);
  box->UseBuffer(buffer);
  {
    TextBox other;
    other.UseBuffer(buffer);
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_Return, Qt::Key_Left}) QTest::keyClick(&other, key);
  }
  buffer.Replace(0, 1, "\r\n1");
  EXPECT_EQ(State(), "x¶y¶z|¶");
  for (std::size_t line = 0; line < buffer.LineCount(); ++line)
    EXPECT_EQ(box->RowSpan(buffer.LineStart(line)).begin, buffer.LineStart(line));
  box->UseBuffer(second);
  buffer.SetText("unseen");
  EXPECT_EQ(State(), "|");
  EXPECT_EQ(changed.count() * 10 + moved.count(), 45);
  box->UseBuffer(buffer);
  delete box;
  buffer.SetText("alone");
}

TEST_F(TextBoxTest, ScrollsByTheWheelTheMouseAndTheFinger) {
  QWidget* const area = box->viewport();
  QScrollBar& down = *box->verticalScrollBar();
  SetRows(60);
  EXPECT_TRUE(RollWheel(*area, {}, {0, -120}));
  const int rows = QApplication::wheelScrollLines() * down.singleStep();
  EXPECT_EQ(down.value(), rows);
  EXPECT_TRUE(RollWheel(*area, {0, -7}, {0, -56}));
  EXPECT_TRUE(down.value() == rows + 7 || QGuiApplication::platformName() == QStringLiteral("xcb"));
  EXPECT_FALSE(RollWheel(*area, {}, {0, -120}, Qt::ControlModifier));  // a window may zoom
  down.setValue(0);

  Do("press@0");
  QTest::mouseMove(area, QPoint(10, area->height() + 500));
  EXPECT_TRUE(QTest::qWaitFor([&] { return State().ends_with('|'); }));
  Do("release@0");
  EXPECT_EQ(down.value(), down.maximum());

  Do("Ctrl+Home");
  QPointingDevice* screen = QTest::createTouchDevice();
  QTest::touchEvent(area, screen).press(0, QPoint(50, 250), area);
  for (int y = 240; y > 40; y -= 10) QTest::touchEvent(area, screen).move(0, QPoint(50, y), area);
  QTest::touchEvent(area, screen).release(0, QPoint(50, 40), area);
  EXPECT_TRUE(QTest::qWaitFor([&] { return down.value() > 0; }));
  EXPECT_EQ(State().front(), '|');
}

TEST_F(TextBoxTest, LeavesTheMenuToTheWindowThatAsksForItAndOffersToPasteOthersText) {
  const QSignalSpy asked(box, &QWidget::customContextMenuRequested);
  box->setContextMenuPolicy(Qt::CustomContextMenu);
  Do("Shift+F10");
  EXPECT_EQ(asked.count(), 1);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  box->setContextMenuPolicy(Qt::DefaultContextMenu);
  QGuiApplication::clipboard()->setText(QStringLiteral("theirs"));
  Do("Shift+F10");
  EXPECT_NE(State().find("|Vložit"), std::string::npos);
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

TEST_F(TextBoxTest, InputMethodsSeeTheTextAroundTheCaretOnly) {
  const std::string most(512, 'a'), before = most.substr(1);
  box->Buffer().SetText("first\r\n" + std::string(4000, 'b') + most + "\xE9" + most + std::string(4000, 'b') +
                        "\r\nlast");
  Do("SelStart=4519 Shift+Right");
  const auto answer = [&](Qt::InputMethodQuery query) { return box->inputMethodQuery(query); };
  QString answers;
  for (const auto query : {Qt::ImTextBeforeCursor, Qt::ImTextAfterCursor, Qt::ImCursorPosition, Qt::ImAnchorPosition})
    answers += answer(query).toString() + u'|';
  EXPECT_EQ(answers.toStdString(), before + "é|" + most + "|512|511|");
  EXPECT_EQ(answer(Qt::ImSurroundingText).toString().toStdString(), before + "é" + most);
  EXPECT_EQ(answer(Qt::ImCursorRectangle).toRect(), box->CaretRect().translated(box->viewport()->pos()));
  Do("readOnly=1");
  EXPECT_FALSE(answer(Qt::ImEnabled).toBool());
}

// A screen reader that knows the text by what it is told alone. No test platform has one at work.
struct Reader : TextBoxNotifier {
  using TextBoxNotifier::TextBoxNotifier;
  bool IsActive() const override { return true; }
  void Send(QAccessibleEvent& event) override {
    if (const auto* update = dynamic_cast<QAccessibleTextUpdateEvent*>(&event)) {
      const auto removed = update->textRemoved().size();
      EXPECT_EQ(text.mid(update->changePosition(), removed), update->textRemoved());
      text.replace(update->changePosition(), removed, update->textInserted());
    } else if (const auto* insert = dynamic_cast<QAccessibleTextInsertEvent*>(&event)) {
      text.insert(insert->changePosition(), insert->textInserted());
    } else if (const auto* selected = dynamic_cast<QAccessibleTextSelectionEvent*>(&event)) {
      selection = {selected->selectionStart(), selected->selectionEnd()};
    } else if (const auto* moved = dynamic_cast<QAccessibleTextCursorEvent*>(&event)) {
      caret = moved->cursorPosition();
    }
  }
  QString text;
  int caret = -1;
  std::pair<int, int> selection;
};

TEST_F(TextBoxTest, WhatAScreenReaderIsToldMakesUpTheText) {
  TextBuffer& buffer = box->Buffer();
  Reader reader(*box);
  const Listening changes = buffer.OnChange([&](const TextChange& change) { reader.Changed(change); });
  const Listening moves = buffer.OnSelection([&] { reader.CaretMoved(); });
  RandomSource random(1);
  buffer.SetText("the first that is heard: nobody knows what was before");
  for (int step = 0; step < 500; ++step) {
    const std::size_t from = random.Below(buffer.Size() + 1), to = random.Below(buffer.Size() + 1),
                      what = random.Below(4);
    if (step % 50 == 0) buffer.SetText(random.Text(30, "ab\xE8\r\n"));
    if (what == 0) buffer.Undo();
    if (what == 1) buffer.Replace(from, random.Below(5), random.Text(5, "ab\xE8\r\n"));
    if (what > 1 && (from != buffer.Anchor() || to != buffer.Caret())) {
      buffer.Select(from, to);
      ASSERT_EQ(reader.selection, std::pair(box->SelStart(), box->SelStart() + box->SelLength())) << step;
    }
    ASSERT_EQ(reader.text, TextToQString(buffer.Text())) << step;
    ASSERT_EQ(reader.caret, static_cast<int>(buffer.Caret())) << step;
  }
}

TEST_F(TextBoxTest, AssistiveTechnologyReadsUnitsAndChangesTheText) {
  QAccessibleInterface& face = *QAccessible::queryAccessibleInterface(box);
  QAccessibleTextInterface& text = *face.textInterface();
  QAccessibleEditableTextInterface& edit = *face.editableTextInterface();
  box->SetText("P\xF8\151\r\ntwo words\r\n");
  EXPECT_EQ(face.text(QAccessible::Value), QStringLiteral("Při\r\ntwo words\r\n"));
  using Text = QAccessibleTextInterface;
  const auto unit = [&](auto read, int offset, QAccessible::TextBoundaryType type) {
    int from = 0, to = 0;
    const QString found = (text.*read)(offset, type, &from, &to);
    EXPECT_EQ(found, text.text(from, to));
    return found.toStdString();
  };
  EXPECT_EQ(unit(&Text::textAtOffset, 10, QAccessible::WordBoundary), "words");
  EXPECT_EQ(unit(&Text::textAtOffset, -1, QAccessible::NoBoundary), "Při\r\ntwo words\r\n");
  EXPECT_EQ(unit(&Text::textAtOffset, 6, QAccessible::LineBoundary), "two words\r\n");
  EXPECT_EQ(unit(&Text::textBeforeOffset, 6, QAccessible::ParagraphBoundary), "Při\r\n");
  EXPECT_EQ(unit(&Text::textBeforeOffset, 0, QAccessible::CharBoundary), "");
  EXPECT_EQ(unit(&Text::textAfterOffset, 1, QAccessible::CharBoundary), "i");
  EXPECT_EQ(unit(&Text::textAfterOffset, 16, QAccessible::WordBoundary), "");
  EXPECT_EQ(text.offsetAtPoint(text.characterRect(6).topLeft() + QPoint(1, 1)), 6);

  EXPECT_TRUE(face.role() == QAccessible::EditableText && face.state().multiLine && face.state().editable);
  edit.replaceText(2, 14, QStringLiteral("ž\n"));
  edit.deleteText(0, 1);
  edit.insertText(0, QStringLiteral("x"));
  text.setSelection(0, 1, 3);
  EXPECT_EQ(State(), "x[řž|¶¶");
  text.removeSelection(0);
  box->setReadOnly(true);
  edit.insertText(0, QStringLiteral("no"));
  EXPECT_EQ(State(), "xřž|¶¶");
  EXPECT_TRUE(text.selectionCount() == 0 && face.state().readOnly && !face.state().editable);
}

}  // namespace
}  // namespace pelmar
