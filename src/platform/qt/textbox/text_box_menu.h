// The pop-up menu that a text box shows where its window has none of its own.
#pragma once

#include <QMenu>

namespace pelmar {

class TextBox;

// The caller owns the menu. Its actions do what the keys shown beside them do.
QMenu* BuildTextMenu(TextBox& box);

}  // namespace pelmar
