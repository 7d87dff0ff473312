// The notes in the about window, up to the heading of those of this version, which stand below. Windows-1250.
#pragma once

#include <string>

namespace pelmar {

std::string ReleaseNotes();

}  // namespace pelmar
