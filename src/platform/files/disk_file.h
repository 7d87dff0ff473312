// Reads and saves files with system calls, so that the errno of a failed call can be shown. Only regular files are
// read and saved, since a device or a pipe could block forever. A path is the bytes that the system gave.
//
// The steps of a save:
// 1. file_target follows links and finds out whether the file is new or old.
// 2. new_file creates a file without a name in the same folder. file_attributes copies the attributes of the old file.
// 3. The content is written and brought to the disk by fsync.
// 4. The new file gets its name. If there is an old file, the new file replaces the old file by a rename.
// 5. fsync of the folder brings the name to the disk. Now the save is complete.
// The old file is overwritten in place if it has several names, if the folder refuses a new file or the rename, or if
// an attribute can't be copied. First kept_content copies the old content into "puvodni-*" of the keep folder (for
// documents: the install folder). The copy is removed when the new content or the restored old content is on the disk.
// A kill or a power cut during steps 1 to 5 leaves the old content or the new content in the file. Only a save in place
// can leave a mixture of both. Then the complete old content is in "puvodni-*", and the next start of the program
// reports the copies in the install folder.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace pelmar {

// Whether the path leads to a regular file that can be opened for reading.
bool CanReadFile(const std::string& path);

// Reads the file, at most `limit` bytes. Errors: EISDIR for a folder; EINVAL for another file that is not regular;
// EFBIG if there is no limit and the file is longer than kLongestWhole bytes.
FileBytes ReadWholeFile(const std::string& path, std::optional<std::uint64_t> limit);

// See Platform::ReadByPieces. The errors EISDIR and EINVAL are those of ReadWholeFile.
int ReadFileByPieces(const std::string& path, const std::function<bool(std::string_view)>& take);

inline constexpr std::uint64_t kLongestWhole = std::uint64_t{1} << 30;

// Saves `bytes` in the file by the steps above. A copy of the old content, if necessary, is made in `keep_folder`. A
// file that did not exist gets `new_mode`, before the umask. The errors EISDIR and EINVAL are those of ReadWholeFile.
WriteOutcome ReplaceFile(const std::string& path, std::string_view bytes, const std::string& keep_folder,
                         mode_t new_mode = 0666);

// Creates a file that only its owner can read. Returns 0 or an errno: EEXIST if the name is taken, even by a link that
// leads nowhere. After a failure the new file is removed.
int CreateFile(const std::string& path, std::string_view bytes);

// See Platform::RewriteFile. The target is saved by the steps above. The errors EISDIR and EINVAL, for the source or
// the target, are those of ReadWholeFile.
WriteOutcome RewriteFileByPieces(const std::string& source, const std::string& target, OldTail tail,
                                 FileRewriter& rewriter, const std::string& keep_folder);

std::optional<FileStamp> StampOf(const std::string& path);

}  // namespace pelmar
