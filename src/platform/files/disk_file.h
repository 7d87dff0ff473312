// Reads and saves files with system calls, so that the errno of a failed call can be shown. Only regular files are read
// and saved, since a device or a pipe could block forever. A path is the bytes that the system gave. A save goes into a
// new file, which then replaces the old file by a rename. If the folder or the old file doesn't allow this, the old
// content is copied to "puvodni-*" in the keep folder (for documents: the install folder), and the old file is
// overwritten. "One save" in docs/ARCHITECTURE.md lists the steps.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace pelmar {

// Whether the path leads to a regular file that can be opened for reading.
bool CanReadFile(const std::string& path);

// Reads the file, at most `limit` bytes. The error is EISDIR for a folder and EINVAL for another file that is not
// regular. The error is EFBIG if there is no limit and the file is longer than kLongestWhole bytes.
FileBytes ReadWholeFile(const std::string& path, std::optional<std::uint64_t> limit);

inline constexpr std::uint64_t kLongestWhole = std::uint64_t{1} << 30;

// Saves `bytes` in the file. A copy of the old content, if necessary, is made in `keep_folder`. A file that did not
// exist gets the permissions `new_mode` less the umask. The errors EISDIR and EINVAL are those of ReadWholeFile.
WriteOutcome ReplaceFile(const std::string& path, std::string_view bytes, const std::string& keep_folder,
                         mode_t new_mode = 0666);

// Creates a file that only its owner can read. Returns 0 or an errno: EEXIST if the name is taken, even by a link that
// leads nowhere. After a failure the new file is removed.
int CreateFile(const std::string& path, std::string_view bytes);

std::optional<FileStamp> StampOf(const std::string& path);

}  // namespace pelmar
