#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "platform/qt/textbox/text_box.h"

namespace pelmar {
namespace {

// Counts the presses that arrive, and lets none through.
struct PressCounter : QObject {
  int presses = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) ++presses;
    return event->type() == QEvent::KeyPress;
  }
};

bool Send(QWidget& receiver, QEvent::Type type, Qt::Key key, quint64 time, bool marked = false) {
  QKeyEvent event(type, key, Qt::NoModifier, {}, marked);
  event.setTimestamp(time);
  QSpontaneKeyEvent::setSpontaneous(&event);
  qApp->notify(&receiver, &event);
  return event.isAccepted();
}

// A held key comes as a release and a press of one time, which the toolkit may or may not have marked as a repeat.
TEST(HeldKeys, RepeatOnlyWhereTheyEditText) {
  TextBox text;
  QLineEdit field;
  QListWidget list;
  QPushButton button;
  PressCounter counter;
  for (QWidget* widget : {static_cast<QWidget*>(&text), static_cast<QWidget*>(&field), static_cast<QWidget*>(&list),
                          static_cast<QWidget*>(&button)})
    widget->installEventFilter(&counter);
  const struct {
    const char* what;
    Qt::Key key;
    QWidget &pressed, &repeated;
    bool arrives;
  } cases[] = {{"Enter in the text", Qt::Key_Return, text, text, true},
               {"Enter from a button on in the text", Qt::Key_Return, button, text, false},
               {"Enter in a field", Qt::Key_Enter, field, field, false},
               {"Delete in a field", Qt::Key_Delete, field, field, true},
               {"Delete in a list", Qt::Key_Delete, list, list, false},
               {"Backspace from the text on in a field", Qt::Key_Backspace, text, field, true}};
  quint64 now = 1;
  for (const bool marked : {false, true}) {
    for (const auto& one : cases) {
      SCOPED_TRACE(testing::Message() << one.what << ", marked: " << marked);
      Send(one.pressed, QEvent::KeyPress, one.key, now);
      counter.presses = 0;
      Send(one.pressed, QEvent::KeyRelease, one.key, ++now, marked);
      if (marked) ++now;
      // A press that is held back must not reach a shortcut either. A field keeps its keys from shortcuts anyway.
      const bool kept = Send(one.repeated, QEvent::ShortcutOverride, one.key, now, marked);
      EXPECT_EQ(kept, !one.arrives || &one.repeated == &field);
      Send(one.repeated, QEvent::KeyPress, one.key, now, marked);
      EXPECT_EQ(counter.presses, one.arrives);
      Send(one.repeated, QEvent::KeyRelease, one.key, ++now);
      Send(one.repeated, QEvent::KeyPress, one.key, ++now);  // pressed again, however soon
      EXPECT_EQ(counter.presses, one.arrives + 1);
    }
  }
}

}  // namespace
}  // namespace pelmar
