// The step line, one of the two notations of the tests (marked_text.h has the other): what a user does in a window, and
// what the window's controls then show.
//
//   ExpectState(window, "Text1='a b' Check1! Command1!", "Label1=3 List1=a|>b Command2=(&Ok)");
//
// Blanks separate the words of a line. Between apostrophes a blank belongs to its word. Steps:
//   Command1!      clicks a button, a check box, an option, or an item of a menu or of a toolbar
//   Text1=abc      replaces the text of a field or of an editable box
//   VScroll1=3     moves a scroll bar to a value
//   List1=2        makes a row of a list current, counted from 0; List1=abc the first row that begins with "abc"
//   Combo1=2       chooses a row of a box that isn't editable; TabStrip1=1 chooses a tab
//   Dir1=/a        goes to a folder
//   Text1:ab\r     gives the focus to a control and types: \r Enter, \b Backspace, \x7f Delete, \x1b Escape, → and ↓;
//                  a letter such as ň is composed, as after a dead key
// States:
//   Label1=abc     the text of a label, button, field or box, or the value of a bar
//   Check1=1       a check box, an option or a button is checked; 0: it isn't checked
//   List1=a|>b     the rows of a list, ">" before a selected one
//   Picture1=#ff0000 the colour of a swatch
//   Command1=(&Ok) the control is disabled
// Session tests have other steps, such as keys and clicks; see `work` in session/harness.py.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <string>

#include "platform/qt/controls/swatch.h"
#include "platform/qt/convert.h"
#include "platform/qt/filelists/folder_list.h"
#include "platform/qt/textbox/text_box.h"

namespace pelmar {

template <class Type>
Type* Find(const QWidget& window, const char* name) {
  return window.findChild<Type*>(QString::fromUtf8(name));
}

// Runs `act` in the next event loop. Call this before a function that waits in a modal dialog.
inline void Inside(std::function<void()> act) { QTimer::singleShot(0, qApp, std::move(act)); }

// Like Inside, with the open modal dialog as argument. If no dialog of this type is open, the test fails.
template <class Dialog>
void InDialog(std::function<void(Dialog&)> act) {
  Inside([act = std::move(act)] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

inline QStringList Words(const char* line) {
  QStringList words;
  bool quoted = false, begun = false;
  for (const QChar c : QString::fromUtf8(line)) {
    if (c == QLatin1Char('\'')) quoted = !quoted;
    if (c == QLatin1Char(' ') && !quoted) {
      begun = false;
      continue;
    }
    if (!begun) words += QString();
    begun = true;
    if (c != QLatin1Char('\'')) words.last() += c;
  }
  return words;
}

inline QWidget* Named(const QWidget& window, const QString& name) {
  auto* control = window.findChild<QWidget*>(name);
  EXPECT_NE(control, nullptr) << window.objectName().toStdString() << " has no control " << name.toStdString();
  return control;
}
inline QWidget* Named(const QWidget& window, const char* name) { return Named(window, QString::fromUtf8(name)); }

inline void Type(QWidget& focus, QChar key) {
  constexpr std::pair<char16_t, Qt::Key> kNamed[] = {
      {u'\x7F', Qt::Key_Delete}, {u'→', Qt::Key_Right}, {u'↓', Qt::Key_Down}};
  for (const auto& [sign, named] : kNamed)
    if (key == QChar(sign)) return QTest::keyClick(&focus, named);
  if (key.toLatin1() != 0) return QTest::keyClick(&focus, key.toLatin1());
  QInputMethodEvent composed;
  composed.setCommitString(key);
  QCoreApplication::sendEvent(&focus, &composed);
}

// Runs the steps.
inline void Work(const QWidget& window, const char* steps) {
  for (const QString& step : Words(steps)) {
    const auto end = std::find_if(step.begin(), step.end(), [](QChar c) { return QLatin1String("!=:").contains(c); });
    const QString name = step.left(end - step.begin()), value = step.mid(name.size() + 1);
    const QChar sign = step.size() > name.size() ? *end : QChar();
    if (auto* item = window.findChild<QAction*>(name); item && sign == QLatin1Char('!')) {
      item->trigger();
      continue;
    }
    QWidget* control = Named(window, name);
    if (!control) continue;
    auto* box = qobject_cast<QComboBox*>(control);
    if (auto* button = qobject_cast<QAbstractButton*>(control); button && sign == QLatin1Char('!')) {
      button->click();
    } else if (sign == QLatin1Char(':')) {
      control->setFocus();
      for (const QChar c : value) Type(*window.focusWidget(), c);
    } else if (auto* text = qobject_cast<TextBox*>(control)) {
      text->Buffer().SetText(TextFromQString(value));
    } else if (box && box->isEditable()) {
      box->setEditText(value);
    } else if (auto* folders = qobject_cast<FolderList*>(control)) {
      folders->SetPath(value);
    } else if (auto* list = qobject_cast<QAbstractItemView*>(control)) {
      bool numbered = false;
      const QModelIndex row = list->model()->index(value.toInt(&numbered), 0);
      list->setCurrentIndex(numbered ? row : list->model()->match(row, Qt::DisplayRole, value).value(0));
    } else if (!control->setProperty(qobject_cast<QLineEdit*>(control)         ? "text"
                                     : qobject_cast<QAbstractSlider*>(control) ? "value"
                                                                               : "currentIndex",
                                     value)) {
      ADD_FAILURE() << window.objectName().toStdString() << ": the control has no such step: " << step.toStdString();
    }
  }
}

// The content of a control, as a state line writes it.
inline QString Shown(QWidget* control) {
  QString shown;
  for (const char* property : {"currentIndex", "currentText", "text", "value"})
    if (const QVariant value = control->property(property); value.isValid()) shown = value.toString();
  if (qobject_cast<const Swatch*>(control)) {
    shown = control->grab().toImage().pixelColor(control->rect().center()).name();
  } else if (auto* button = qobject_cast<const QAbstractButton*>(control); button && button->isCheckable()) {
    shown = QString::number(button->isChecked());
  } else if (auto* text = qobject_cast<const TextBox*>(control)) {
    shown = TextToQString(text->Buffer().Text());
  } else if (auto* list = qobject_cast<const QAbstractItemView*>(control)) {
    for (int row = 0; row < list->model()->rowCount(); ++row) {
      const QModelIndex index = list->model()->index(row, 0);
      shown += QLatin1String(row ? "|" : "") + QLatin1String(list->selectionModel()->isSelected(index) ? ">" : "") +
               index.data().toString();
    }
  }
  return control->isEnabled() ? shown : QLatin1Char('(') + shown + QLatin1Char(')');
}

// Runs the steps, then compares each control that the state line names. A failure names the caller's line.
inline void ExpectState(const QWidget& window, const char* steps, const char* state,
                        const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
  Work(window, steps);
  for (const QString& word : Words(state)) {
    const QString name = word.section(QLatin1Char('='), 0, 0), expected = word.mid(name.size() + 1);
    QWidget* control = Named(window, name);
    if (control == nullptr || Shown(control) == expected) continue;
    ADD_FAILURE_AT(file, line) << window.objectName().toStdString() << '.' << name.toStdString() << ": expected '"
                               << expected.toStdString() << "', seen '" << Shown(control).toStdString() << "' after \""
                               << steps << '"';
  }
}

}  // namespace pelmar
