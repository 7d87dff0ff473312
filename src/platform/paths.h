// Parts of paths, and how they are stored. A path is the bytes that the system gave; both "\\" and "/" separate.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

// Part 1 of a path is its folder with the closing separator, 2 the name without extension, 3 the extension; any other
// number gives "". Throws RuntimeError (EINVAL) for an empty path, and for part 2 of a path
// whose name holds no full stop.
std::string FilePart(std::string_view path, int part);

// False for a path whose name holds no full stop, as part 2 refuses it, and for an empty one.
bool HasExtension(std::string_view path);

bool EndsInSeparator(std::string_view path);

// "file:///" and the path, each backslash as "/", nothing encoded. A native absolute path gets three slashes in all.
std::string PathToFileUrl(std::string_view path);

// The path that a "file://" URL of this computer names, percent-decoded; nothing for any other string.
std::optional<std::string> PathFromFileUrl(std::string_view url);

// What stands behind the last separator, the whole of a path that has none.
std::string_view NameOf(std::string_view path);

// Folder and name joined by the separator that the folder is written with, none added where it ends in one.
std::string JoinPath(std::string_view folder, std::string_view name);

// How a path lies in a file of Windows-1250 text: in the page where that loses nothing, else as it is in UTF-8. Reading
// takes what is valid UTF-8 for UTF-8; a path whose page bytes would be mistaken for it is kept as UTF-8 too. A path
// that is no UTF-8 itself is kept as a URL.
std::string StoredPath(std::string_view path);
std::string PathFromStored(std::string_view bytes);

}  // namespace pelmar
