// The notes that the about window shows above the heading for this version. Windows-1250.
#pragma once

#include <string>

namespace pelmar {

std::string ReleaseNotes();

}  // namespace pelmar
