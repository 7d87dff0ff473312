#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "platform/qt/textbox/text_box.h"

namespace pelmar {
namespace {

// Counts the key presses for a widget and keeps them from the widget.
struct PressCounter : QObject {
  int presses = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) ++presses;
    return event->type() == QEvent::KeyPress;
  }
};

bool Send(QWidget& receiver, QEvent::Type type, Qt::Key key, quint64 time, bool auto_repeat = false) {
  QKeyEvent event(type, key, Qt::NoModifier, {}, auto_repeat);
  event.setTimestamp(time);
  QSpontaneKeyEvent::setSpontaneous(&event);
  qApp->notify(&receiver, &event);
  return event.isAccepted();
}

// A held key sends a release and a press that have the same time or that the toolkit marks as a repeat.
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
    const char* name;
    Qt::Key key;
    QWidget &pressed, &repeated;
    bool arrives;
  } cases[] = {{"Enter in the text", Qt::Key_Return, text, text, true},
               {"Enter, from a button to the text", Qt::Key_Return, button, text, false},
               {"Enter in a field", Qt::Key_Enter, field, field, false},
               {"the space bar in a field", Qt::Key_Space, field, field, true},
               {"the space bar on a button", Qt::Key_Space, button, button, false},
               {"Delete in a field", Qt::Key_Delete, field, field, true},
               {"Delete in a list", Qt::Key_Delete, list, list, false},
               {"Backspace, from the text to a field", Qt::Key_Backspace, text, field, true}};
  quint64 now = 1;
  for (const bool auto_repeat : {false, true}) {
    for (const auto& one : cases) {
      SCOPED_TRACE(testing::Message() << one.name << ", auto-repeat: " << auto_repeat);
      Send(one.pressed, QEvent::KeyPress, one.key, now);
      counter.presses = 0;
      Send(one.pressed, QEvent::KeyRelease, one.key, ++now, auto_repeat);
      if (auto_repeat) ++now;
      // A suppressed press must not reach a shortcut either. A field overrides shortcuts anyway.
      const bool overridden = Send(one.repeated, QEvent::ShortcutOverride, one.key, now, auto_repeat);
      EXPECT_EQ(overridden, !one.arrives || &one.repeated == &field);
      Send(one.repeated, QEvent::KeyPress, one.key, now, auto_repeat);
      EXPECT_EQ(counter.presses, one.arrives);
      Send(one.repeated, QEvent::KeyRelease, one.key, ++now);
      Send(one.repeated, QEvent::KeyPress, one.key, ++now);  // a new press at any time
      EXPECT_EQ(counter.presses, one.arrives + 1);
    }
  }
}

}  // namespace
}  // namespace pelmar
