// Icons from the program's own vector pictures, as sharp as the screen allows at any size and scale.
// Making one costs nothing: the picture is read at the first paint only, so a toolbar or a window full of them does
// not slow the start. The pictures are square, and the engine relies on it.
#pragma once

#include <QIcon>
#include <QString>

namespace pelmar {

// An icon that draws the SVG at `resource_path` (as in ":/icons/open.svg"). A picture that is missing or damaged
// draws nothing. Only for the interface thread.
QIcon SvgIcon(const QString& resource_path);

// Gives every window the program's icon, those to come too. The first call draws it, so it waits until a window needs
// it.
void ShowProgramIcon();

}  // namespace pelmar
