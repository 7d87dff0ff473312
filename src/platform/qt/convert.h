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

// For display. Reads bytes that are not UTF-8 as Windows-1250: a message may contain a path with such bytes.
QString Utf8ToQString(std::string_view utf8);
inline std::string Utf8FromQString(const QString& string) { return string.toStdString(); }

// Converts a path without loss. Each byte that is not UTF-8 becomes a lone surrogate U+DC80 to U+DCFF. Qt's lists and
// properties keep such a string, but Qt's file functions can't use such a string. ShownPath is for display.
QString PathToQString(std::string_view path);
std::string PathFromQString(const QString& path);
QString ShownPath(const QString& path);

// Converts a path to a file URL and back without loss.
QUrl UrlOfPath(std::string_view path);
std::string PathOfUrl(const QUrl& url);

// The title for a window. Doubles "[*]", which is a placeholder for Qt.
inline QString PlainTitle(std::string_view utf8) {
  return Utf8ToQString(utf8).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

// Cuts a text for a message after `most` characters and appends dots. Returns a shorter text unchanged.
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
