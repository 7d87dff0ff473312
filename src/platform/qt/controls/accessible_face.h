// Presents the program's own controls to assistive technology.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace pelmar {

// Makes `Face`, constructed from the control, the accessible interface of every `Control`. Further calls do nothing.
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

// For a widget or a window that would otherwise be presented as a mere container.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

// A dynamic property of a label that shows a value: the name of the value. Screen readers say the name and the value,
// but an accessible name would replace the value.
inline constexpr char kValueName[] = "valueName";
// Activates kValueName and names groups of options by the label above. Call before the first such label is created.
void InstallLabelFaces();

// Lets screen readers say a text. Does nothing if no screen reader runs.
void Announce(QWidget& window, const QString& text);

// Qt presents the current item as the name of a combo box, so a label must say its purpose. Combo boxes without a label
// get a hidden label with their accessible name. The fields of editable combo boxes get the same name.
void LabelBoxes(QWidget& window);

}  // namespace pelmar
