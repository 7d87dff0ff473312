// Text on its way between our Windows-1250 bytes and other programs: clipboard, primary selection, drag and drop.
// Others get plain text with LF line ends; our own windows and copies get the exact bytes beside it.
#pragma once

#include <QMimeData>
#include <QString>
#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

inline constexpr char kBytesMimeType[] = "application/x-pelmar-windows-1250";

// The caller owns the result. The conversion for other programs happens when one of them asks.
QMimeData* MimeFromText(std::string_view bytes);

// The exact bytes where they are offered, otherwise the plain text by PageText; nothing where there is no text.
// Nothing also for null.
std::optional<std::string> TextFromMime(const QMimeData* mime);

// The same for a single-line field: what is outside the code page stays as it is, and where the field holds no lines,
// their breaks go.
QString LineFromMime(const QMimeData& mime, bool holds_lines);

// Foreign text in our code page: letters and their accents are joined first, a lone LF becomes CR LF.
std::string PageText(const QString& foreign);

}  // namespace pelmar
