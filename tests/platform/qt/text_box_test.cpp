#include "platform/qt/controls/text_box.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <random>

#include "platform/qt/clipboard_text.h"
#include "platform/qt/convert.h"

namespace pelmar {
namespace {

using namespace std::string_literals;

QClipboard& Clipboard() { return *QGuiApplication::clipboard(); }

class TextBoxTest : public testing::Test {
 protected:
  TextBoxTest() {
    window.resize(400, 300);
    box = new TextBox(&window);
    box->setGeometry(0, 0, 400, 300);
    window.show();
    window.activateWindow();
    box->setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void Set(const std::string& text, std::size_t anchor = 0, std::size_t caret = 0) {
    box->Buffer().SetText(text);
    box->Buffer().Select(anchor, caret);
  }
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(box, static_cast<Qt::Key>(key), modifiers);
  }
  [[nodiscard]] const std::string& Text() const { return box->Buffer().Text(); }
  [[nodiscard]] QPoint PointOf(std::size_t pos) const { return box->CharRect(pos).center(); }
  void Click(std::size_t pos, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {}) {
    // Just right of the left border, so that the caret goes before the character.
    const QRect cell = box->CharRect(pos);
    QTest::mouseClick(box->viewport(), button, modifiers, {cell.left() + 1, cell.center().y()});
  }
  bool Drop(const QMimeData& mime, QPoint at) {
    QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box->viewport(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box->viewport(), &drop);
    return drop.isAccepted();
  }
  void Compose(const QString& preedit, const QString& commit) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QApplication::sendEvent(box, &event);
  }

  QWidget window;
  TextBox* box;
};

TEST_F(TextBoxTest, PropertiesAreTheTextAndSelectionByTheByte) {
  const QSignalSpy changed(box, &TextBox::TextChanged);
  const QSignalSpy moved(box, &TextBox::SelectionChanged);
  ASSERT_TRUE(box->setProperty("Text", QByteArray("p\xF8\r\nx\0y", 7)));
  EXPECT_EQ(box->property("Text").toByteArray(), QByteArray("p\xF8\r\nx\0y", 7));
  box->setProperty("SelStart", 3);  // between CR and LF
  box->setProperty("SelLength", 3);
  EXPECT_EQ(box->property("SelText").toByteArray(), QByteArray("\nx\0", 3));
  EXPECT_EQ(moved.count(), 3);
  box->setProperty("SelText", QByteArray("\n"));
  EXPECT_EQ(box->property("Text").toByteArray(), "p\xF8\r\ny");
  EXPECT_EQ(box->property("SelStart").toInt(), 4);
  EXPECT_EQ(changed.count(), 2);
  box->setProperty("Text", box->property("Text"));
  EXPECT_EQ(changed.count(), 2);
  EXPECT_EQ(box->property("SelStart").toInt(), 0);
  box->setProperty("SelStart", -5);
  box->setProperty("SelLength", 99);
  EXPECT_EQ(box->property("SelLength").toInt(), 5);
}

TEST_F(TextBoxTest, KeysEditAndMove) {
  const struct {
    const char* what;
    std::string text;
    std::size_t anchor, caret;
    int key;
    Qt::KeyboardModifiers modifiers;
    std::string after;
    std::size_t anchor_after, caret_after;
  } cases[] = {
      {"enter", "ab", 1, 1, Qt::Key_Return, {}, "a\r\nb", 3, 3},
      {"enter of the keypad", "ab", 1, 1, Qt::Key_Enter, Qt::KeypadModifier, "a\r\nb", 3, 3},
      {"tab is typed", "ab", 0, 1, Qt::Key_Tab, {}, "\tb", 1, 1},
      {"backspace takes a pair", "a\r\nb", 3, 3, Qt::Key_Backspace, {}, "ab", 1, 1},
      {"backspace takes a lone LF", "a\n\nb", 3, 3, Qt::Key_Backspace, {}, "a\nb", 2, 2},
      {"backspace between CR and LF", "a\r\nb", 2, 2, Qt::Key_Backspace, {}, "a\nb", 1, 1},
      {"delete takes a pair", "a\r\nb", 1, 1, Qt::Key_Delete, {}, "ab", 1, 1},
      {"delete takes a lone CR", "a\r\r\nb", 1, 1, Qt::Key_Delete, {}, "a\r\nb", 1, 1},
      {"delete takes NUL", "a\0b"s, 1, 1, Qt::Key_Delete, {}, "ab", 1, 1},
      {"delete takes the selection", "abcd", 3, 1, Qt::Key_Delete, {}, "ad", 1, 1},
      {"word before", "one two", 7, 7, Qt::Key_Backspace, Qt::ControlModifier, "one ", 4, 4},
      {"word behind", "one two", 0, 0, Qt::Key_Delete, Qt::ControlModifier, "two", 0, 0},
      {"right over a pair", "a\r\nb", 1, 1, Qt::Key_Right, {}, "a\r\nb", 3, 3},
      {"right over a sign", "a\x01 b", 1, 1, Qt::Key_Right, {}, "a\x01 b", 2, 2},
      {"left over a pair, selecting", "a\r\nb", 3, 3, Qt::Key_Left, Qt::ShiftModifier, "a\r\nb", 3, 1},
      {"word right, selecting", "one two", 0, 0, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier, "one two", 0,
       4},
      {"home", "ab\r\ncd", 6, 6, Qt::Key_Home, {}, "ab\r\ncd", 4, 4},
      {"end before the pair", "ab\r\ncd", 0, 0, Qt::Key_End, {}, "ab\r\ncd", 2, 2},
      {"end of all, selecting", "ab\r\ncd", 1, 1, Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier, "ab\r\ncd", 1,
       6},
      {"all", "ab\r\ncd", 1, 1, Qt::Key_A, Qt::ControlModifier, "ab\r\ncd", 0, 6},
      {"down", "ab\r\ncd", 1, 1, Qt::Key_Down, {}, "ab\r\ncd", 5, 5},
  };
  for (const auto& c : cases) {
    Set(c.text, c.anchor, c.caret);
    Key(c.key, c.modifiers);
    EXPECT_EQ(Text(), c.after) << c.what;
    EXPECT_EQ(box->Buffer().Anchor(), c.anchor_after) << c.what;
    EXPECT_EQ(box->Buffer().Caret(), c.caret_after) << c.what;
  }
}

TEST_F(TextBoxTest, TypedLettersTurnIntoThePage) {
  const auto type = [&](const QString& text, Qt::KeyboardModifiers modifiers = {}) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, modifiers, text);
    QApplication::sendEvent(box, &event);
  };
  type(QStringLiteral("ř"));
  type(QStringLiteral("€"));
  type(QStringLiteral("ж"));
  type(QStringLiteral("@"), Qt::ControlModifier | Qt::AltModifier);  // AltGr
  type(QStringLiteral("x"), Qt::AltModifier);                        // a menu's access key
  type(QStringLiteral("\x1b"));
  EXPECT_EQ(Text(), "\xF8\x80?@");
}

TEST_F(TextBoxTest, UndoAndRedoKeys) {
  Set("");
  QTest::keyClicks(box, QStringLiteral("abc"));
  Key(Qt::Key_Return);
  Key(Qt::Key_Backspace, Qt::AltModifier);
  Key(Qt::Key_Backspace, Qt::AltModifier);
  EXPECT_EQ(Text(), "");
  Key(Qt::Key_Backspace, Qt::AltModifier | Qt::ShiftModifier);
  EXPECT_EQ(Text(), "abc\r\n");
}

TEST_F(TextBoxTest, MenusGetTheirKeysFirst) {
  QAction copy(&window);
  QAction erase(&window);
  copy.setShortcut(QKeySequence(QStringLiteral("Ctrl+C")));
  erase.setShortcut(QKeySequence(QStringLiteral("Ctrl+Backspace")));
  window.addAction(&copy);
  window.addAction(&erase);
  const QSignalSpy copied(&copy, &QAction::triggered);
  const QSignalSpy erased(&erase, &QAction::triggered);
  Clipboard().setText(QStringLiteral("before"));
  Set("one", 0, 3);
  Key(Qt::Key_C, Qt::ControlModifier);
  Key(Qt::Key_Backspace, Qt::ControlModifier);
  EXPECT_EQ(copied.count(), 1);
  EXPECT_EQ(erased.count(), 1);
  EXPECT_EQ(Clipboard().text(), QStringLiteral("before"));
  EXPECT_EQ(Text(), "one");
}

TEST_F(TextBoxTest, WithoutStandardShortcutsOnlyTheOldClipboardKeysWork) {
  box->setStandardShortcuts(false);
  Clipboard().setText(QStringLiteral("old"));
  Set("abc", 0, 2);
  for (const int key : {Qt::Key_A, Qt::Key_C, Qt::Key_X, Qt::Key_V, Qt::Key_Z, Qt::Key_Y, Qt::Key_B})
    Key(key, Qt::ControlModifier);
  Key(Qt::Key_F3);
  EXPECT_EQ(Text(), "abc");
  EXPECT_EQ(box->SelLength(), 2);
  EXPECT_EQ(Clipboard().text(), QStringLiteral("old"));
  Key(Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_EQ(Clipboard().text(), QStringLiteral("ab"));
  Key(Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_EQ(Text(), "c");
  Key(Qt::Key_Insert, Qt::ShiftModifier);
  Key(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(Text(), "ababc");
}

TEST_F(TextBoxTest, ReadOnlyTextIsSelectedAndCopiedButNotChanged) {
  Set("abc\r\ndef", 0, 3);
  box->setReadOnly(true);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard().text(), QStringLiteral("abc"));
  for (const int key : {Qt::Key_X, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete}) Key(key);
  for (const int key : {Qt::Key_X, Qt::Key_V, Qt::Key_Backspace}) Key(key, Qt::ControlModifier);
  Compose(QStringLiteral("p"), QStringLiteral("q"));
  QMimeData mime;
  mime.setText(QStringLiteral("dropped"));
  EXPECT_FALSE(Drop(mime, PointOf(1)));
  EXPECT_EQ(Text(), "abc\r\ndef");
  EXPECT_FALSE(box->inputMethodQuery(Qt::ImEnabled).toBool());
  Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(box->Buffer().Caret(), 8u);
  box->setProperty("SelText", QByteArray("x"));  // programs may
  EXPECT_EQ(Text(), "x");
}

// ---- clipboard

TEST(ClipboardText, ConvertsForeignTextAndKeepsOwnBytes) {
  const struct {
    QString foreign;
    std::string text;
  } cases[] = {
      {QStringLiteral("a\nb\n"), "a\r\nb\r\n"},
      {QStringLiteral("a\r\nb\n\n"), "a\r\nb\r\n\r\n"},
      {QStringLiteral("a\rb"), "a\rb"},
      {QStringLiteral("š–ж😀"), "\x9A\x96??"},
      {QStringLiteral("c\u030Carka"),
       "\xE8"
       "arka"},  // the accent apart
  };
  for (const auto& c : cases) {
    QMimeData mime;
    mime.setText(c.foreign);
    EXPECT_EQ(TextFromMime(&mime), c.text) << c.foreign.toStdString();
  }
  const std::string own = "\r\n\n\r\0\x81\xE8"s;
  const std::unique_ptr<QMimeData> mime(MimeFromText(own));
  EXPECT_EQ(TextFromMime(mime.get()), own);
  EXPECT_EQ(mime->text(), QStringLiteral("\n\n\r") + QChar(0) + QChar(0x81) + QStringLiteral("č"));
  EXPECT_EQ(mime->data(QString::fromLatin1(kBytesMimeType)).toStdString(), own);
  QMimeData picture;
  picture.setData(QStringLiteral("image/png"), "x");
  EXPECT_EQ(TextFromMime(&picture), std::nullopt);
  EXPECT_EQ(TextFromMime(nullptr), std::nullopt);
}

TEST_F(TextBoxTest, ClipboardKeepsOddBytesBetweenBoxes) {
  Set("a\n\0\r\nb"s, 1, 5);
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Text(), "ab");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text(), "a\n\0\r\nb"s);
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
  std::string text;
  unsigned state = 7;
  for (int i = 0; i < 600; ++i) {
    state = state * 1664525U + 1013904223U;
    text += i % 97 == 96 ? "\r\n"s : std::string(1, " \t.HH\x03"[state >> 24U & 3U]);
    if ((state >> 28U) == 3) text += '\x03';
  }
  box->setBackgroundColor(Qt::white);
  box->setTextColor(Qt::black);
  for (const Qt::Alignment alignment : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
    for (const bool wrap : {true, false}) {
      box->setAlignment(alignment);
      box->setWordWrap(wrap);
      Set(text);
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
  box->setBackgroundColor(Qt::white);
  box->setTextColor(Qt::black);
  box->clearFocus();
  for (const QString& family : {QStringLiteral("DejaVu Sans"), QStringLiteral("URW Gothic")}) {
    box->setFont(QFont(family, 9));
    Set(text);
    const QImage image = box->viewport()->grab().toImage();
    for (int code = 0; code < 256; ++code) {
      if (code == '\t' || code == ' ' || code == 0xA0) continue;
      EXPECT_TRUE(HasInk(image, box->CharRect(static_cast<std::size_t>(code) * 3)))
          << family.toStdString() << " " << code;
    }
  }
}

TEST_F(TextBoxTest, ScrollsAsFarAsTheCaretNeeds) {
  std::string lines;
  for (int i = 0; i < 500; ++i) lines += std::to_string(i) + std::string(300, 'x') + "\r\n";
  for (const bool wrap : {true, false}) {
    box->setWordWrap(wrap);
    Set(lines);
    EXPECT_EQ(box->horizontalScrollBar()->maximum() > 0, !wrap);
    for (const std::size_t pos : {std::size_t{0}, lines.size(), lines.size() / 2, std::size_t{290}}) {
      box->SetSelStart(static_cast<int>(pos));
      EXPECT_TRUE(box->viewport()->rect().contains(box->CaretRect())) << pos << " wrap " << wrap;
    }
  }
  box->setWordWrap(true);
  box->SetSelStart(0);
  Key(Qt::Key_PageDown);
  Key(Qt::Key_PageDown);
  EXPECT_TRUE(box->viewport()->rect().contains(box->CaretRect()));
  Key(Qt::Key_PageUp);
  Key(Qt::Key_PageUp);
  EXPECT_EQ(box->verticalScrollBar()->value(), 0);
  EXPECT_EQ(box->Buffer().Caret(), 0u);

  // Another width keeps the text at the top where it is.
  box->verticalScrollBar()->setValue(box->verticalScrollBar()->maximum() / 2);
  const std::size_t top = box->PlaceAt({0, 0}).pos;
  box->resize(250, 300);
  const TextSpan row = box->RowSpan(box->PlaceAt({0, 0}).pos);
  EXPECT_TRUE(row.begin <= top && top < row.end) << row.begin << " " << top;
}

TEST_F(TextBoxTest, WhatIsRepaintedInPartsEqualsTheWhole) {
  std::mt19937 random(11);
  const auto piece = [&](std::size_t longest) {
    std::string text;
    for (std::size_t left = random() % longest + 1; left > 0; --left)
      text += random() % 14 == 0 ? "\r\n"s : std::string(1, "abcdefg mnop\t\x02"[random() % 14]);
    return text;
  };
  constexpr Qt::Alignment alignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
  box->setFrameShape(QFrame::NoFrame);
  for (int round = 0; round < 6; ++round) {
    box->setWordWrap(round % 2 == 0);
    box->setAlignment(alignments[round % 3]);
    Set(piece(3000));
    for (int step = 0; step < 60; ++step) {
      const std::size_t pos = random() % (box->Buffer().Size() + 1);
      switch (random() % 9) {
        case 0:
          box->Buffer().Select(pos, std::min(pos + random() % 200, box->Buffer().Size()));
          break;
        case 1:
          box->Buffer().Replace(pos, random() % 30, piece(30));
          break;
        case 2:
          box->verticalScrollBar()->setValue(static_cast<int>(random() % 900));
          break;
        case 3:
          box->horizontalScrollBar()->setValue(static_cast<int>(random() % 900));
          break;
        case 4:
          Key(Qt::Key_Backspace, Qt::AltModifier);
          break;
        case 5:
          Key(Qt::Key_PageDown, random() % 2 == 0 ? Qt::ShiftModifier : Qt::NoModifier);
          break;
        case 6:
          Key(Qt::Key_Return);
          break;
        case 7:
          Compose(random() % 2 == 0 ? QString() : QStringLiteral("´ě"), {});
          break;
        default:
          Key(Qt::Key_X);
          break;
      }
      QApplication::processEvents();
      const QImage seen = window.screen()->grabWindow(window.winId()).toImage().convertToFormat(QImage::Format_RGB32);
      const QImage whole = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
      ASSERT_EQ(seen.size(), whole.size());
      ASSERT_TRUE(seen == whole) << "round " << round << " step " << step;
    }
  }
}

TEST_F(TextBoxTest, HiddenBoxesFollowWhenTheyAreShown) {
  window.hide();
  Set("one\r\n");
  for (int i = 0; i < 300; ++i) box->Buffer().Replace(0, 0, "row\r\n");
  box->SetSelStart(100000);
  window.show();
  EXPECT_TRUE(box->viewport()->rect().contains(box->CaretRect()));
  EXPECT_EQ(box->PlaceAt(box->CaretRect().center()).pos, box->Buffer().Size());
}

TEST(TextBox, WorksBeforeItIsShown) {
  TextBox box;
  box.resize(300, 200);
  box.SetText("one two\r\nthree");
  QTest::keyClick(&box, Qt::Key_End);
  EXPECT_EQ(box.Buffer().Caret(), 7u);
  EXPECT_EQ(box.grab().size(), QSize(300, 200));
  EXPECT_EQ(box.RowSpan(0).end, 9u);
}

TEST_F(TextBoxTest, TwoBoxesShowOneBufferAndMayGoBeforeIt) {
  TextBuffer buffer;
  buffer.SetText("shared");
  auto other = std::make_unique<TextBox>();
  const QSignalSpy told(box, &TextBox::TextChanged);
  box->UseBuffer(buffer);
  other->UseBuffer(buffer);
  other->show();
  other->Buffer().Select(0, 0);
  QTest::keyClick(other.get(), Qt::Key_X);
  EXPECT_EQ(box->Text(), "xshared");
  EXPECT_EQ(told.count(), 1);
  other.reset();
  TextBuffer second;
  box->UseBuffer(second);
  buffer.SetText("unseen");
  EXPECT_EQ(told.count(), 1);
  EXPECT_EQ(box->Text(), "");
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
    if (std::exchange(cut, true)) return;
    buffer.Replace(0, 3, "x\r\ny\r\nz");
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
  Set("one two\r\nthree four\r\nfive");
  Click(4);
  EXPECT_EQ(box->Buffer().Caret(), 4u);
  Click(15, Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(box->SelText(), "two\r\nthree ");

  QTest::mousePress(box->viewport(), Qt::LeftButton, {}, {box->CharRect(22).left() + 1, PointOf(22).y()});
  QTest::mouseMove(box->viewport(), {box->CharRect(10).left() + 1, PointOf(10).y()});
  QTest::mouseRelease(box->viewport(), Qt::LeftButton);
  EXPECT_EQ(box->SelText(), "hree four\r\nf");
  EXPECT_EQ(box->Buffer().Caret(), 10u);

  Set(Text());
  QTest::mouseDClick(box->viewport(), Qt::LeftButton, {}, PointOf(10));
  EXPECT_EQ(box->SelText(), "three");
  QTest::mousePress(box->viewport(), Qt::LeftButton, {}, PointOf(10));
  EXPECT_EQ(box->SelText(), "three four");
  QTest::mouseMove(box->viewport(), PointOf(1));
  EXPECT_EQ(box->SelText(), "one two\r\nthree four");
  EXPECT_EQ(box->Buffer().Caret(), 0u);
  QTest::mouseRelease(box->viewport(), Qt::LeftButton, {}, PointOf(1));
}

TEST_F(TextBoxTest, MouseHeldBelowTheWindowScrollsAndSelects) {
  std::string lines;
  for (int i = 0; i < 200; ++i) lines += "row\r\n";
  Set(lines);
  const QPoint below(10, box->viewport()->height() + 500);
  QTest::mousePress(box->viewport(), Qt::LeftButton, {}, PointOf(0));
  QTest::mouseMove(box->viewport(), below);
  EXPECT_TRUE(QTest::qWaitFor([&] { return box->Buffer().Caret() == lines.size(); }));
  QTest::mouseRelease(box->viewport(), Qt::LeftButton, {}, below);
  const int value = box->verticalScrollBar()->value();
  EXPECT_EQ(value, box->verticalScrollBar()->maximum());
}

TEST_F(TextBoxTest, WheelScrollsByRowsOrExactPixels) {
  std::string lines;
  for (int i = 0; i < 200; ++i) lines += "row\r\n";
  Set(lines);
  const auto roll = [&](QPoint pixels, QPoint angle, Qt::KeyboardModifiers modifiers = {}) {
    QWheelEvent event(QPointF(5, 5), box->viewport()->mapToGlobal(QPointF(5, 5)), pixels, angle, {}, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(box->viewport(), &event);
    return event.isAccepted();
  };
  EXPECT_TRUE(roll({}, {0, -120}));
  const int rows = QApplication::wheelScrollLines() * box->verticalScrollBar()->singleStep();
  EXPECT_EQ(box->verticalScrollBar()->value(), rows);
  if (QGuiApplication::platformName() != QStringLiteral("xcb")) {
    EXPECT_TRUE(roll({0, -7}, {0, -56}));
    EXPECT_EQ(box->verticalScrollBar()->value(), rows + 7);
  }
  EXPECT_FALSE(roll({}, {0, -120}, Qt::ControlModifier));  // a window may zoom
}

TEST_F(TextBoxTest, FingersScroll) {
  std::string lines;
  for (int i = 0; i < 200; ++i) lines += "row\r\n";
  Set(lines);
  QPointingDevice* screen = QTest::createTouchDevice();
  QTest::touchEvent(box->viewport(), screen).press(0, QPoint(50, 250), box->viewport());
  for (int y = 240; y > 40; y -= 10) QTest::touchEvent(box->viewport(), screen).move(0, QPoint(50, y), box->viewport());
  QTest::touchEvent(box->viewport(), screen).release(0, QPoint(50, 40), box->viewport());
  EXPECT_TRUE(QTest::qWaitFor([&] { return box->verticalScrollBar()->value() > 0; }));
  EXPECT_EQ(box->SelLength(), 0);
  EXPECT_EQ(box->SelStart(), 0);
}

TEST_F(TextBoxTest, RightButtonKeepsTheSelectionAndMenusMayBeTheWindows) {
  Set("one two three", 4, 7);
  Click(5, Qt::RightButton);
  EXPECT_EQ(box->SelText(), "two");
  Click(10, Qt::RightButton);
  EXPECT_EQ(box->SelText(), "two");  // for the menu to work on
  box->SetSelLength(0);
  Click(10, Qt::RightButton);
  EXPECT_EQ(box->Buffer().Caret(), 10u);

  const auto ask = [&] {
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, box->viewport()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(box->viewport(), &event);
  };
  QSignalSpy asked(box, &QWidget::customContextMenuRequested);
  box->setContextMenuPolicy(Qt::CustomContextMenu);
  ask();
  EXPECT_EQ(asked.count(), 1);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  box->setContextMenuPolicy(Qt::DefaultContextMenu);
  box->Do({TextCommand::kSelectAll});
  ask();
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  for (QAction* action : menu->actions())
    if (action->text().startsWith(QStringLiteral("&Smazat"))) action->trigger();
  menu->close();
  EXPECT_EQ(Text(), "");
}

TEST_F(TextBoxTest, PrimarySelectionIsSetAndPasted) {
  // Where the platform has no primary selection there is nothing to set or to paste.
  if (!Clipboard().supportsSelection()) GTEST_SKIP() << "this platform has no primary selection";
  Set("one two");
  QTest::mouseDClick(box->viewport(), Qt::LeftButton, {}, PointOf(1));
  QTest::mouseRelease(box->viewport(), Qt::LeftButton, {}, PointOf(1));
  EXPECT_EQ(Clipboard().text(QClipboard::Selection), QStringLiteral("one"));
  Key(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(Clipboard().text(QClipboard::Selection), QStringLiteral("one two"));
  Clipboard().setText(QStringLiteral("ž\n"), QClipboard::Selection);
  Click(4, Qt::MiddleButton);
  EXPECT_EQ(Text(), "one \x9E\r\ntwo");
}

// ---- drag and drop

TEST_F(TextBoxTest, DroppedTextGoesInAndFilesDoNot) {
  Set("one two");
  QMimeData text;
  text.setText(QStringLiteral("š\n"));
  EXPECT_TRUE(Drop(text, {box->CharRect(4).left() + 1, PointOf(4).y()}));
  EXPECT_EQ(Text(), "one \x9A\r\ntwo");
  EXPECT_EQ(box->SelText(), "\x9A\r\n");
  QMimeData files;
  files.setUrls({QUrl(QStringLiteral("file:///tmp/x.htm"))});
  files.setText(QStringLiteral("file:///tmp/x.htm"));
  EXPECT_FALSE(Drop(files, PointOf(1)));
  EXPECT_EQ(Text(), "one \x9A\r\ntwo");
}

TEST_F(TextBoxTest, DraggedSelectionMovesInOneStep) {
  const struct {
    std::size_t to;
    bool copy;
    std::string after;
  } cases[] = {{0, false, "two one three"},   {4, false, "one two three"},  {8, false, "one two three"},
               {10, false, "one thtwo ree"},  {13, false, "one threetwo "}, {0, true, "two one two three"},
               {6, true, "one twtwo o three"}};
  for (const auto& c : cases) {
    Set("one two three", 4, 8);
    MoveSelection(box->Buffer(), c.to, c.copy);
    EXPECT_EQ(Text(), c.after) << c.to;
    EXPECT_EQ(box->SelText(), "two ");
    if (Text() != "one two three") Key(Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(Text(), "one two three");
    EXPECT_EQ(box->SelText(), "two ");
  }
}

// ---- input methods

TEST_F(TextBoxTest, ComposedTextIsShownButNotTextUntilItIsCommitted) {
  Set("one two", 4, 7);
  const QRect before = box->CharRect(4);
  Compose(QStringLiteral("´"), {});
  EXPECT_EQ(Text(), "one ");  // composing replaces the selection
  EXPECT_GT(box->CaretRect().left(), before.left());
  Compose({}, QStringLiteral("é"));
  EXPECT_EQ(Text(), "one \xE9");
  EXPECT_EQ(box->inputMethodQuery(Qt::ImSurroundingText).toString(), QStringLiteral("one é"));
  EXPECT_EQ(box->inputMethodQuery(Qt::ImCursorPosition).toInt(), 5);
  QInputMethodEvent replace;
  replace.setCommitString(QStringLiteral("ONE"), -5, 3);
  QApplication::sendEvent(box, &replace);
  EXPECT_EQ(Text(), "ONE \xE9");
}

TEST_F(TextBoxTest, InputMethodsSeeTheTextAroundTheCaretOnly) {
  Set("first\r\n" + std::string(4000, 'a') + "|" + std::string(4000, 'b') + "\r\nlast", 4007, 4008);
  const QString around = box->inputMethodQuery(Qt::ImSurroundingText).toString();
  const int caret = box->inputMethodQuery(Qt::ImCursorPosition).toInt();
  EXPECT_LT(around.size(), 2000);
  EXPECT_EQ(around.mid(caret - 2, 3), QStringLiteral("a|b"));
  EXPECT_EQ(box->inputMethodQuery(Qt::ImAnchorPosition).toInt(), caret - 1);
  EXPECT_EQ(box->inputMethodQuery(Qt::ImCursorRectangle).toRect(), box->CaretRect().translated(box->viewport()->pos()));
}

TEST_F(TextBoxTest, CaretStaysInSightWhereItShall) {
  box->setBackgroundColor(Qt::white);
  box->setTextColor(Qt::black);
  for (const bool stays : {false, true}) {
    box->SetCaretStays(stays);
    box->setFocus();
    box->clearFocus();
    box->Buffer().SetText("      ");
    box->Buffer().ReplaceSelection("   ");  // as a tool window does
    const QImage image = box->viewport()->grab().toImage();
    EXPECT_EQ(HasInk(image, box->CaretRect()), stays);
    EXPECT_NE(image.pixelColor(box->CaretRect().center()), QColor(Qt::black));  // the full one is of the active window
  }
}

TEST_F(TextBoxTest, TabGoesOnWhereItCanNotBeTyped) {
  QLineEdit before(&window);
  QLineEdit next(&window);
  before.show();
  next.show();
  QWidget::setTabOrder(&before, box);
  QWidget::setTabOrder(box, &next);
  Key(Qt::Key_Tab);
  EXPECT_EQ(Text(), "\t");
  box->setTabChangesFocus(true);
  Key(Qt::Key_Tab);
  EXPECT_TRUE(next.hasFocus());
  box->setFocus();
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(before.hasFocus());
}

TEST(CaretBlink, RunsNoTimerWhereItNeedNot) {
  int repaints = 0;
  CaretBlink blink([&] { ++repaints; }, nullptr);
  blink.Start(true);
  EXPECT_TRUE(blink.Shown() && blink.Running());
  blink.Start(false);
  EXPECT_TRUE(blink.Shown() && !blink.Running());
  blink.Hide();
  EXPECT_FALSE(blink.Shown() || blink.Running());
  EXPECT_EQ(repaints, 2);
}

}  // namespace
}  // namespace pelmar
