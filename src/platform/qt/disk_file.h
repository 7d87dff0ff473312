// Files by the system's own calls, so that the errno a person is told is that of the call which failed.
// Writing never cuts an old file before the new content is safe; see ReplaceFile. Reading takes regular files only:
// a device or a pipe could block for ever. Paths are in the system's encoding, UTF-8.
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

// All bytes up to the end or the limit. EISDIR for a folder, EINVAL for anything else that isn't a regular file.
FileBytes ReadWholeFile(const std::string& path, std::optional<std::uint64_t> limit);

// See Platform::ReadByPieces; errors as above.
int ReadFileByPieces(const std::string& path, const std::function<bool(std::string_view)>& take);

// Makes `bytes` the content of the file; 0 or errno. The content is written to a new file beside, brought to the disk
// and renamed over the old one, whose permissions, owner and group it keeps as far as the system lets it. A link stays
// a link, its target is replaced. `new_mode` is for a file that wasn't there, before the umask.
//
// Where the folder refuses that (not writable, or sticky) and the file itself may be written, it is written in place:
// the room is reserved before the first old byte is touched, and after a failed write the old bytes are put back. Only
// a crash in the middle can mix the two. A character device or a pipe gets the bytes directly.
int ReplaceFile(const std::string& path, std::string_view bytes, mode_t new_mode = 0666);

// Writes a file that wasn't there, for its owner alone; 0 or errno. EEXIST where anything has that name, a link that
// leads nowhere included. After a failed write nothing stays behind.
int CreateFile(const std::string& path, std::string_view bytes);

// See Platform::RewriteFile. The source is a regular file. The new content goes to a file beside the target and is
// renamed over it, with the care for links and permissions that ReplaceFile takes, but isn't brought to the disk first:
// it can be made again from the source. Where the folder refuses that, the target itself is written.
int RewriteFileByPieces(const std::string& source, const std::string& target, OldTail tail, FileRewriter& rewriter);

// True where both paths lead to one file that is there.
bool LeadToSameFile(const std::string& left, const std::string& right);

}  // namespace pelmar
