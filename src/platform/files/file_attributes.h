// The attributes of a file: owner, group, permissions, access list and extended attributes.
#pragma once

#include <sys/stat.h>

#include <string>

namespace pelmar {

// The permissions that a saved file keeps. Set-id bits are dropped: they were granted to the old content.
inline constexpr mode_t kKeptMode = 01777;

// Copies the attributes of the old file to the new open `file`, without the rights and signatures of the old content.
// Returns 0, or the errno of the first attribute that can't be copied. After an error the new file must not replace the
// old file.
int GiveAttributes(int file, const std::string& old_path, const struct stat& old);

}  // namespace pelmar
