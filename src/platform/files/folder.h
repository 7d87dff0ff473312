// Folders on the disk.
#pragma once

#include <string>

namespace pelmar {

// Creates a folder and its missing parent folders. Only the owner can enter the new folders. Waits until the names are
// on the disk, but doesn't report a failure of this wait. Returns 0 or an errno. An existing folder gives 0.
int MakeFolder(const std::string& path);

}  // namespace pelmar
