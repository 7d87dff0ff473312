// The clipboard's text between this program, which counts bytes of Windows-1250, and all others.
// Our own copies travel exactly under a private type; others get and give Unicode with LF line ends.
#pragma once

#include <optional>
#include <string>
#include <string_view>

class QMimeData;

namespace pelmar {

// The caller, as a rule the clipboard, takes the ownership.
QMimeData* MimeFromText(std::string_view bytes);

// Nothing where the data holds no text. A lone LF of another program's text becomes CR LF.
std::optional<std::string> TextFromMime(const QMimeData* mime);

}  // namespace pelmar
