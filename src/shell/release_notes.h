// The notes in the about window, up to the heading of this version's own notes. Windows-1250.
#pragma once

#include <string>

namespace pelmar {

std::string ReleaseNotes();

}  // namespace pelmar
