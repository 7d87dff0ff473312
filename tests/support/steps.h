// Works a window by a line of steps, and tells its controls in a line, so that a test of a dialog is a table.
#pragma once

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QProgressBar>
#include <QTabBar>
#include <QTest>
#include <algorithm>

#include "platform/qt/controls/folder_list.h"
#include "platform/qt/controls/swatch.h"
#include "platform/qt/controls/text_box.h"
#include "platform/qt/convert.h"
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
    if (auto* button = qobject_cast<QAbstractButton*>(control); button && act == QLatin1Char('!')) {
      button->click();
    } else if (control && act == QLatin1Char(':')) {
      control->setFocus();
      for (const QChar c : value) Type(*window.focusWidget(), c);
    } else if (auto* text = qobject_cast<TextBox*>(control)) {
      text->Buffer().SetText(TextFromQString(value));
    } else if (auto* field = qobject_cast<QLineEdit*>(control)) {
      field->setText(value);
    } else if (auto* box = qobject_cast<QComboBox*>(control)) {
      box->isEditable() ? box->setEditText(value) : box->setCurrentIndex(value.toInt());
    } else if (auto* bar = qobject_cast<QAbstractSlider*>(control)) {
      bar->setValue(value.toInt());
    } else if (auto* tabs = qobject_cast<QTabBar*>(control)) {
      tabs->setCurrentIndex(value.toInt());
    } else if (auto* folders = qobject_cast<FolderList*>(control)) {
      folders->SetPath(value);
    } else if (auto* list = qobject_cast<QAbstractItemView*>(control)) {
      bool numbered = false;
      const QModelIndex row = list->model()->index(value.toInt(&numbered), 0);
      list->setCurrentIndex(numbered ? row : list->model()->match(row, Qt::DisplayRole, value).value(0));
    } else {
      ADD_FAILURE() << "nothing does " << step.toStdString();
    }
  }
}

// What a control shows: a text, a bar's value, "1" or "0" of what can be checked, a list's rows between "|" with ">"
// before the selected ones; in parentheses where it is disabled.
inline QString Shown(const QWidget* control) {
  QString shown;
  if (auto* swatch = qobject_cast<const Swatch*>(control)) {
    shown = swatch->Color().name();
  } else if (auto* button = qobject_cast<const QAbstractButton*>(control)) {
    shown = button->isCheckable() ? QString::number(button->isChecked()) : button->text();
  } else if (auto* label = qobject_cast<const QLabel*>(control)) {
    shown = label->text();
  } else if (auto* field = qobject_cast<const QLineEdit*>(control)) {
    shown = field->text();
  } else if (auto* text = qobject_cast<const TextBox*>(control)) {
    shown = TextToQString(text->Buffer().Text());
  } else if (auto* box = qobject_cast<const QComboBox*>(control)) {
    shown = box->currentText();
  } else if (auto* bar = qobject_cast<const QAbstractSlider*>(control)) {
    shown = QString::number(bar->value());
  } else if (auto* progress = qobject_cast<const QProgressBar*>(control)) {
    shown = QString::number(progress->value());
  } else if (auto* tabs = qobject_cast<const QTabBar*>(control)) {
    shown = QString::number(tabs->currentIndex());
  } else if (auto* list = qobject_cast<const QAbstractItemView*>(control)) {
    for (int row = 0; row < list->model()->rowCount(); ++row) {
      const QModelIndex index = list->model()->index(row, 0);
      shown += QLatin1String(row ? "|" : "") + QLatin1String(list->selectionModel()->isSelected(index) ? ">" : "") +
               index.data().toString();
    }
  }
  return control->isEnabled() ? shown : QLatin1Char('(') + shown + QLatin1Char(')');
}

// The controls named, as in "Label1=1% VScroll1=(50)".
inline std::string State(const QWidget& window, const char* names) {
  QStringList shown;
  for (const QString& name : Words(names))
    if (const QWidget* control = Named(window, name)) shown += name + QLatin1Char('=') + Shown(control);
  return shown.join(QLatin1Char(' ')).toStdString();
}

// Expects after the steps what the second line says of the controls that it names: "Label1=1% Text1='a b'".
inline void ExpectState(const QWidget& window, const char* steps, const char* state) {
  Work(window, steps);
  QStringList shown;
  const QStringList expected = Words(state);
  for (const QString& word : expected) {
    const QString name = word.left(word.indexOf(QLatin1Char('=')));
    if (const QWidget* control = Named(window, name)) shown += name + QLatin1Char('=') + Shown(control);
  }
  EXPECT_EQ(shown.join(QLatin1Char(' ')).toStdString(), expected.join(QLatin1Char(' ')).toStdString()) << steps;
}

}  // namespace pelmar
