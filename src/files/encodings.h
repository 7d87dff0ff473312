// Converts a file on disk between UTF-8 and Windows-1250. The result is another file in the same folder. The hints and
// questions about the encoding and the line ends of a document are here too.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"

namespace pelmar {

// The hint about a text for which LooksLikeUtf8 is true, or which has an LF without a CR before it and no NUL. "" for
// any other text. Hints and questions are UTF-8.
std::string_view FormatHint(std::string_view bytes);
// The hint for a text that was UTF-8 when it was opened or at a later save, and now is in both encodings.
std::string_view MixHint();
// The question before a text in both encodings is written over the UTF-8 file at `path`.
std::string MixQuestion(const std::string& path);

// Replaces the extension of the file name. A name without an extension, such as ".profile", gets one appended.
std::string WithExtension(std::string_view path, std::string_view extension);

// Convert a file into a file with the extension "1250" or "utf8". Ask before a readable target is overwritten. Show a
// message after a failure, or if the target is the source file. ConvertToPage refuses malformed UTF-8 with a message,
// and asks before characters are lost. ConvertToUtf8 asks if LooksLikeUtf8 is true for the file.
void ConvertToPage(Platform& platform, const std::string& path);
void ConvertToUtf8(Platform& platform, const std::string& path, bool byte_order_mark);

}  // namespace pelmar
