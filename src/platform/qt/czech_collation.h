// The order of the Czech language ("ch" behind "h", "č" behind "c"), ignoring case, for texts and for file names.
#pragma once

#include <QCollator>

namespace pelmar {

QCollator CzechCollator();

}  // namespace pelmar
