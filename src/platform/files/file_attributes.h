// The attributes of a file: owner, group, permissions, access list and extended attributes.
#pragma once

#include <sys/stat.h>

#include <string>

namespace pelmar {

// The permissions that a saved file keeps. Set-id bits are dropped: they were granted to the old content.
inline constexpr mode_t kKeptMode = 01777;

// Copies all attributes of the old file to a new open file. Returns 0, or the errno of the first attribute that can't
// be copied. In this case the new file must not replace the old file.
int GiveAttributes(int file, const std::string& old_path, const struct stat& old);

}  // namespace pelmar
