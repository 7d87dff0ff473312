// Adds an entry to the content of the desktop's list of recent documents.
#pragma once

#include <string>

namespace pelmar {

// Returns the list `xbel` with an entry for the file `path` (absolute), which this program has opened now. An existing
// entry is updated. An empty `xbel` gives a new list. The result is empty if `xbel` is not a valid list; then the file
// must not be changed.
std::string AddBookmark(const std::string& xbel, const std::string& path, const std::string& mime);

}  // namespace pelmar
