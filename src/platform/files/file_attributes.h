// What a file has beside its content: owner, group, permissions, access list, extended attributes.
#pragma once

#include <sys/stat.h>

#include <string>

namespace pelmar {

// The permissions that a rewritten file keeps. A set-id bit lent its owner's rights to the old content alone.
inline constexpr mode_t kKeptMode = 01777;

// Gives a new, open file all that the old one has. 0, or the errno of what it can't have: then it can't stand in for
// the old file.
int GiveAttributes(int file, const std::string& old_path, const struct stat& old);

}  // namespace pelmar
