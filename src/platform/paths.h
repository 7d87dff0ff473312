// Splits and joins paths. Converts paths to and from file URLs and Windows-1250. A path is the bytes that the system
// gave. Both "\" and "/" separate folders.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

// Part 1 is the folder with its separator, part 2 the name without extension, part 3 the extension without its point.
// Other parts are "". Throws RuntimeError (EINVAL) for an empty path, and for part 2 if the name has no extension.
// required: part 3 of a name without extension is the whole name. A path without separator counts as a folder.
std::string FilePart(std::string_view path, int part);

// Whether the name has an extension. A name that ends in a point has an empty extension. False for a path without
// separator.
bool HasExtension(std::string_view path);

bool EndsInSeparator(std::string_view path);

// "file:///" and the path with "/" for each backslash. Nothing is encoded. The first slash of an absolute path is the
// third slash of the URL.
std::string PathToFileUrl(std::string_view path);

// The path in a "file://" URL of this computer, percent-decoded. Nothing for any other string, and for a URL with
// "%00".
std::optional<std::string> PathFromFileUrl(std::string_view url);

// The part after the last separator. The whole path if there is no separator.
std::string_view NameOf(std::string_view path);

// Joins folder and name with "\" if the folder contains "\" but no "/", otherwise with "/". A separator at the end of
// the folder is not doubled.
std::string JoinPath(std::string_view folder, std::string_view name);

// Converts a path to bytes that a Windows-1250 file can store. A path that has no exact form in Windows-1250 becomes a
// "file://" URL, in which "%" and bytes outside ASCII are percent-encoded. PathFromStored converts a stored absolute
// path back.
std::string StoredPath(std::string_view path);
std::string PathFromStored(std::string_view bytes);

}  // namespace pelmar
