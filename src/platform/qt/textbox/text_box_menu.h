// The pop-up menu of a text box whose window has no pop-up menu.
#pragma once

#include <QMenu>

namespace pelmar {

class TextBox;

// The menu is a child of the text box. The caller deletes the menu after use. An action with a key in its caption does
// what the key does.
QMenu* BuildTextMenu(TextBox& box);

}  // namespace pelmar
