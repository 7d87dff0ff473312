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

// Sets the role that assistive technology sees. Without it, a plain widget or window counts as a container.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

// The dynamic property that names the value which a label shows. Screen readers say the name and then the value; an
// accessible name would replace the value.
inline constexpr char kValueName[] = "valueName";
// Makes kValueName work, and presents a frame that is a label's buddy as a group with this name. Call before the first
// such label is created.
void InstallLabelFaces();

// Lets screen readers say a text. Does nothing if no screen reader runs.
void Announce(QWidget& window, const QString& text);

// Qt presents the current item as the name of a combo box, so a label must say its purpose. Combo boxes without a label
// get a hidden label with their accessible name. The fields of editable combo boxes get the same name.
void LabelBoxes(QWidget& window);

}  // namespace pelmar
