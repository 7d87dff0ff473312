// What the about window says of this version. Windows-1250.
#pragma once

#include <string>

namespace pelmar {

std::string ReleaseNotes();

}  // namespace pelmar
