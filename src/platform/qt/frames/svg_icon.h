// Icons from SVG files, sharp at any size and scale. A file is read when its icon is first painted, so icons don't slow
// the start. The images must be square.
#pragma once

#include <QIcon>
#include <QString>

namespace pelmar {

// The icon of an SVG file such as ":/icons/open.svg". A missing or damaged file draws nothing. Interface thread only.
QIcon SvgIcon(const QString& resource_path);

// Gives all windows the icon of the program. The first call draws the icon, so don't call before a window needs it.
void ShowProgramIcon();

}  // namespace pelmar
