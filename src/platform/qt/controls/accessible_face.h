// How controls of our own show themselves to assistive technology.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace pelmar {

// Makes `Face`, constructed from the control, the face of each `Control`; once is enough for all of them.
template <class Control, class Face>
void InstallFace() {
  static const bool installed = [] {
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
      auto* control = qobject_cast<Control*>(object);
      return control == nullptr ? nullptr : new Face(*control);
    });
    return true;
  }();
  Q_UNUSED(installed);
}

// For a widget that is only looked at, or a plain window, which would else be told of as a mere container.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

// The name of a box to choose from is what it holds, so what it is for has to come from a label. Boxes of the window
// that have none on show get one that is hidden, with their accessible name; and the field of an editable box is named
// too.
void LabelBoxes(QWidget& window);

}  // namespace pelmar
