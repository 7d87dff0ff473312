// Presents the program's own controls to screen readers.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace pelmar {

// Sets the role that screen readers see. Without a role, a plain widget or window counts as a container.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

// Presents a plain frame as a group if the frame is the buddy of a label, which names the group. Call before such
// frames are created.
void InstallGroupFaces();

// Lets screen readers say a text. Does nothing if no screen reader runs.
void Announce(QWidget& window, const QString& text);

// Names the combo boxes of the window. A box with an accessible name but no label gets a hidden label with this name,
// since Qt presents the current item in place of the accessible name. The inner field of an editable box gets the
// accessible name of the box, or the text of the label if the box has no accessible name.
void LabelBoxes(QWidget& window);

}  // namespace pelmar
