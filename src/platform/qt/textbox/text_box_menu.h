// The pop-up menu of a text box whose window has no pop-up menu.
#pragma once

#include <QMenu>

namespace pelmar {

class TextBox;

// The caller owns the menu. Each action does what the key in its caption does.
QMenu* BuildTextMenu(TextBox& box);

}  // namespace pelmar
