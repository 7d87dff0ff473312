// Works a window by a line of steps, and tells its controls in a line, so that a test of a dialog is a table.
#pragma once

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QTest>
#include <algorithm>

#include "platform/qt/controls/swatch.h"
#include "platform/qt/convert.h"
#include "platform/qt/filelists/folder_list.h"
#include "platform/qt/textbox/text_box.h"
#include "support/controls.h"

namespace pelmar {

// The words of a line. A word holds spaces between apostrophes: "Text1='a b' Command1!".
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
  EXPECT_NE(control, nullptr) << "no control " << name.toStdString();
  return control;
}
inline QWidget* Named(const QWidget& window, const char* name) { return Named(window, QString::fromUtf8(name)); }

inline void Type(QWidget& focus, QChar key) {
  constexpr std::pair<char16_t, Qt::Key> kNamed[] = {
      {u'\x7F', Qt::Key_Delete}, {u'→', Qt::Key_Right}, {u'↓', Qt::Key_Down}};
  for (const auto& [sign, named] : kNamed)
    if (key == QChar(sign)) return QTest::keyClick(&focus, named);
  QTest::keyClick(&focus, key.toLatin1());
}

// "Command1!" clicks a button or an item of a menu; "Text1=abc" types over a field or an editable box; "VScroll1=3"
// moves a bar; "List1=2" or "List1=abc" makes a row of a list (from 0, or the one that begins so) the current one,
// "Combo1=2" one of a box that isn't editable, "TabStrip1=1" a tab; "Dir1=/a" goes to a folder. "Text1:abc\r" gives the
// keyboard to a control and types; Delete is \x7f, Backspace \b, Escape \x1b, arrows → and ↓.
inline void Work(const QWidget& window, const char* steps) {
  for (const QString& step : Words(steps)) {
    const auto end = std::find_if(step.begin(), step.end(), [](QChar c) { return QLatin1String("!=:").contains(c); });
    const QString name = step.left(end - step.begin()), value = step.mid(name.size() + 1);
    const QChar act = step.size() > name.size() ? *end : QChar();
    if (auto* item = window.findChild<QAction*>(name); item && act == QLatin1Char('!')) {
      item->trigger();
      continue;
    }
    QWidget* control = Named(window, name);
    if (!control) continue;
    auto* box = qobject_cast<QComboBox*>(control);
    if (auto* button = qobject_cast<QAbstractButton*>(control); button && act == QLatin1Char('!')) {
      button->click();
    } else if (act == QLatin1Char(':')) {
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
      ADD_FAILURE() << "nothing does " << step.toStdString();
    }
  }
}

// What a control shows: a text, a bar's value, "1" or "0" of what can be checked, a list's rows between "|" with ">"
// before the selected ones; in parentheses where it is disabled.
inline QString Shown(const QWidget* control) {
  QString shown;
  for (const char* property : {"currentIndex", "currentText", "text", "value"})
    if (const QVariant value = control->property(property); value.isValid()) shown = value.toString();
  if (auto* swatch = qobject_cast<const Swatch*>(control)) {
    shown = swatch->Color().name();
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

// The controls named, as in "Label1=1% VScroll1=(50)"; a name may have more behind "=".
inline std::string State(const QWidget& window, const char* names) {
  QStringList shown;
  for (const QString& word : Words(names)) {
    const QString name = word.section(QLatin1Char('='), 0, 0);
    if (const QWidget* control = Named(window, name)) shown += name + QLatin1Char('=') + Shown(control);
  }
  return shown.join(QLatin1Char(' ')).toStdString();
}

// Expects after the steps what the second line says of the controls that it names: "Label1=1% Text1='a b'".
inline void ExpectState(const QWidget& window, const char* steps, const char* state) {
  Work(window, steps);
  EXPECT_EQ(State(window, state), Words(state).join(QLatin1Char(' ')).toStdString()) << steps;
}

}  // namespace pelmar
