// Icons from SVG files, sharp at any size and scale. A file is read only when its icon is painted, so a hidden icon
// doesn't slow the start. The images must be square.
#pragma once

#include <QIcon>
#include <QString>

namespace pelmar {

// The icon of an SVG file such as ":/icons/open.svg". A missing or damaged file draws nothing. Interface thread only.
QIcon SvgIcon(const QString& resource_path);

// Gives all windows the icon of the program. The first call renders the icon, so call only when a window needs the
// icon. Further calls do nothing.
void ShowProgramIcon();

}  // namespace pelmar
