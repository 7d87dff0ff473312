// The text of the about window, Windows-1250. The last line is the heading for notes on this version.
#pragma once

#include <string>

namespace pelmar {

std::string ReleaseNotes();

}  // namespace pelmar
