// Folders on the disk.
#pragma once

#include <string>

namespace pelmar {

// Makes a folder for its owner alone, and those above it that are missing; returns when their names are on the disk.
// 0, also where it is there already, or errno.
int MakeFolder(const std::string& path);

}  // namespace pelmar
