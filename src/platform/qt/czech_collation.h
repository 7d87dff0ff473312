// Czech alphabetical order ("ch" after "h", "č" after "c"), ignoring case, for texts and file names.
#pragma once

#include <QCollator>

namespace pelmar {

QCollator CzechCollator();

}  // namespace pelmar
