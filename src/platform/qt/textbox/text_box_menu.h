// The pop-up menu of a text box whose window has no pop-up menu.
#pragma once

#include <QMenu>

namespace pelmar {

class TextBox;

// The menu is a child of the text box; the caller deletes the menu after use. Each action does what the key in its
// caption does.
QMenu* BuildTextMenu(TextBox& box);

}  // namespace pelmar
