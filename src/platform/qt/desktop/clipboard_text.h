// Converts texts for the clipboard, the primary selection, and drag and drop. Other programs get plain text with LF
// line breaks. Pelmar VEX itself gets the exact Windows-1250 bytes.
#pragma once

#include <QMimeData>
#include <QString>
#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

inline constexpr char kBytesMimeType[] = "application/x-pelmar-windows-1250";

bool HasText(const QMimeData& mime);

// The caller owns the result. The plain text is made only when a program asks for plain text.
QMimeData* MimeFromText(std::string_view bytes);

// The exact bytes if offered, otherwise the plain text converted by TextInCodePage. Nothing if `mime` is null or has no
// text.
std::optional<std::string> TextFromMime(const QMimeData* mime);

// The text for a single-line field, in Unicode. If `holds_lines`, keeps the line breaks, and a lone LF of plain text
// becomes CR LF. Otherwise removes each CR and each LF.
QString LineFromMime(const QMimeData& mime, bool holds_lines);

// Converts a text to Windows-1250. First composes letters and their combining accents (NFC). A lone LF becomes CR LF.
std::string TextInCodePage(const QString& foreign);

}  // namespace pelmar
