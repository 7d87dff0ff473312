// Presents the program's own controls to assistive technology.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace pelmar {

// Gives every `Control` an accessible interface of the class `Face`, whose constructor takes the control. Further calls
// do nothing.
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

// Sets the role that assistive technology sees. A plain widget or window without this role counts as a container.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

// The dynamic property that names the value which a label shows. Screen readers say the name and then the value; an
// accessible name would replace the value.
inline constexpr char kValueName[] = "valueName";
// Makes kValueName work. Also presents each plain frame that is the buddy of a label as a group, named by this label.
// Call before the first such label is created.
void InstallLabelFaces();

// Lets screen readers say a text. Does nothing if no screen reader runs.
void Announce(QWidget& window, const QString& text);

// Gives each combo box without a label a hidden label with the box's accessible name, since Qt presents the current
// item in place of this name. The field of an editable box gets this name too. If the box has no accessible
// name, its field gets the text of the box's label.
void LabelBoxes(QWidget& window);

}  // namespace pelmar
