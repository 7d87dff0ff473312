#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "platform/qt/textbox/text_box.h"

namespace pelmar {
namespace {

// A held key comes as a release and a press of one time, which the toolkit may or may not have marked as a repeat.
TEST(HeldKeys, ActOnceWhereTheyEditNoTextAndNeverInAnotherPlace) {
  struct : QObject {
    int presses = 0;
    bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::KeyPress && ++presses; }
  } counter;
  TextBox text;
  QLineEdit field;
  QListWidget list;
  QPushButton button;
  for (QWidget* widget : std::initializer_list<QWidget*>{&text, &field, &list, &button})
    widget->installEventFilter(&counter);
  quint64 now = 1;
  const auto send = [&now](QWidget& receiver, QEvent::Type type, Qt::Key key, bool marked = false) {
    QKeyEvent event(type, key, Qt::NoModifier, {}, marked);
    event.setTimestamp(now);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&receiver, &event);
    return event.isAccepted();
  };
  const std::tuple<Qt::Key, QWidget&, QWidget&, bool> cases[] = {
      {Qt::Key_Return, text, text, true},     {Qt::Key_Return, button, text, false},
      {Qt::Key_Enter, field, field, false},   {Qt::Key_Return, button, button, false},
      {Qt::Key_Return, field, button, false}, {Qt::Key_Delete, text, text, true},
      {Qt::Key_Delete, field, field, true},   {Qt::Key_Delete, list, list, false},
      {Qt::Key_Backspace, text, field, true}};
  for (const bool marked : {false, true}) {
    for (const auto& [key, pressed, repeated, arrives] : cases) {
      send(pressed, QEvent::KeyPress, key);
      counter.presses = 0;
      ++now;
      send(pressed, QEvent::KeyRelease, key, marked);
      if (marked) ++now;
      // What must not arrive is none for a shortcut either; a field keeps its keys from shortcuts by itself.
      EXPECT_EQ(send(repeated, QEvent::ShortcutOverride, key, marked), !arrives || &repeated == &field) << key;
      send(repeated, QEvent::KeyPress, key, marked);
      EXPECT_EQ(counter.presses, arrives) << key << marked;
      ++now;
      send(repeated, QEvent::KeyRelease, key);
      ++now;
      send(repeated, QEvent::KeyPress, key);  // pressed again, however soon
      EXPECT_EQ(counter.presses, arrives + 1) << key << marked;
    }
  }
  // What the program itself hands on comes from no keyboard.
  QKeyEvent handed(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
  QApplication::sendEvent(&text, &handed);
  EXPECT_EQ(counter.presses, 3);
}

}  // namespace
}  // namespace pelmar
