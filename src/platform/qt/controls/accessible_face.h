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

// A dynamic property of a label that shows a value: what the value is. It is told before the value, where an accessible
// name would take the value's place.
inline constexpr char kValueName[] = "valueName";
// Lets labels with that property tell it, and labels that head options name the group; before the first of them is
// made.
void InstallLabelFaces();

// Says what who can't see it wouldn't notice. Nothing where nobody listens.
void Announce(QWidget& window, const QString& text);

// The name of a box to choose from is what it holds, so what it is for has to come from a label. Boxes of the window
// that have none on show get one that is hidden, with their accessible name; and the field of an editable box is named
// too.
void LabelBoxes(QWidget& window);

}  // namespace pelmar
