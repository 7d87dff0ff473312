// Reading and saving files by the system's own calls, so that a person is told the errno of the call that failed.
// Reading takes regular files only: a device or a pipe could block for ever. A path is the bytes that the system gave.
//
// The way of a save:
// 1. file_target follows links to the file and looks whether it is new, old or a device.
// 2. new_file makes a file without a name in the same folder; file_attributes gives it what the old one has.
// 3. The content is written, and fsync brings it to the disk.
// 4. A new name is linked; an old one is replaced by a rename.
// 5. fsync of the folder brings the name to the disk. Only now the save counts as done.
// Where step 2 or 4 isn't possible for an old file, it is written in place: kept_content first copies the old content
// into a file of its own, content and name on the disk; then the new content is written and synced, and the copy
// removed. A power cut or a kill at any moment leaves the old content or the new one.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace pelmar {

// A regular file that opens for reading.
bool CanReadFile(const std::string& path);

// All bytes that the file has as it is opened, up to the limit. EISDIR for a folder, EINVAL for anything else that
// isn't a regular file or that the system makes up while it is read, EFBIG without a limit for more than kLongestWhole.
FileBytes ReadWholeFile(const std::string& path, std::optional<std::uint64_t> limit);

// See Platform::ReadByPieces; errors as above.
int ReadFileByPieces(const std::string& path, const std::function<bool(std::string_view)>& take);

inline constexpr std::uint64_t kLongestWhole = std::uint64_t{1} << 30;

// Makes `bytes` the content of the file. A new file takes the place of the old one and gets its owner, group,
// permissions (without set-id bits), access list and extended attributes. A link stays a link, its target is replaced.
// `new_mode` is for a file that wasn't there, before the umask.
//
// Where the folder refuses that (not writable, or sticky), the new file can't have an attribute of the old one or that
// has other names, it is written in place, if it may be written: the room is reserved and the old content kept in
// `keep_folder` before the first old byte is touched, and after a failure it is put back. Only there can a crash in the
// middle mix the two. A character device or a pipe gets the bytes directly.
WriteOutcome ReplaceFile(const std::string& path, std::string_view bytes, const std::string& keep_folder,
                         mode_t new_mode = 0666);

// Writes a file that wasn't there, for its owner alone; 0 or errno. EEXIST where anything has that name, a link that
// leads nowhere included. After a failed write nothing stays behind.
int CreateFile(const std::string& path, std::string_view bytes);

// See Platform::RewriteFile. The source is a regular file. The target is written as by ReplaceFile.
WriteOutcome RewriteFileByPieces(const std::string& source, const std::string& target, OldTail tail,
                                 FileRewriter& rewriter, const std::string& keep_folder);

std::optional<FileStamp> StampOf(const std::string& path);

}  // namespace pelmar
