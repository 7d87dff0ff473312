// Converts between the strings of the core and of Qt. A text is Windows-1250. A path is the bytes that the system gave:
// usually UTF-8, but names on old disks may be Windows-1250.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>
#include <QUrl>
#include <string>
#include <string_view>

#include "platform/color.h"

namespace pelmar {

QString TextToQString(std::string_view text);
std::string TextFromQString(const QString& string);

// Converts UTF-8. Reads a byte that is not UTF-8 as Windows-1250: a message may contain a path with such bytes.
QString Utf8ToQString(std::string_view utf8);
inline std::string Utf8FromQString(const QString& string) { return string.toStdString(); }

// Convert a path and back without loss. Each byte that is not UTF-8 becomes a lone surrogate U+DC80 to U+DCFF. Qt's
// lists and properties keep these surrogates, but Qt's file functions would change them.
QString PathToQString(std::string_view path);
std::string PathFromQString(const QString& path);
// For display: reads the bytes that are not UTF-8 as Windows-1250.
QString ShownPath(const QString& path);

// Convert an absolute path to a file URL and back without loss.
QUrl UrlOfPath(std::string_view path);
std::string PathOfUrl(const QUrl& url);

// The text for setWindowTitle. Doubles "[*]": Qt takes a single "[*]" as a placeholder and shows a double one as "[*]".
inline QString PlainTitle(std::string_view utf8) {
  return Utf8ToQString(utf8).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

// Shortens a text for a message. If the text is longer than `most` UTF-16 units, dots replace the rest.
inline QString Shortened(const QString& text, int most) {
  return text.size() <= most ? text : text.left(most) + QLatin1String(" ...");
}

inline QColor ColorToQt(Color color) { return {RedOf(color), GreenOf(color), BlueOf(color)}; }
inline Color ColorFromQt(const QColor& color) { return Rgb(color.red(), color.green(), color.blue()); }

inline QByteArray ToBytes(std::string_view text) { return {text.data(), static_cast<qsizetype>(text.size())}; }
inline std::string_view ViewOf(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

}  // namespace pelmar
