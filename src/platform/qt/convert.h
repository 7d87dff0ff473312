// Between the core's strings and Qt's. Text means Windows-1250, message means UTF-8. A path is the bytes that the
// system gave: UTF-8 as a rule, but names on old disks are in Windows-1250.
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

// For the eye: bytes that are no UTF-8, such as those of a path in a message, show as they do in Windows-1250.
QString Utf8ToQString(std::string_view utf8);
inline std::string Utf8FromQString(const QString& string) { return string.toStdString(); }

// A path and back without a loss: each byte that is no UTF-8 stands as a lone surrogate U+DC80 to U+DCFF. Such a string
// goes through the toolkit's lists and properties, but neither to the eye (ShownPath) nor to its file functions.
QString PathToQString(std::string_view path);
std::string PathFromQString(const QString& path);
QString ShownPath(const QString& path);

// A file's URL and back; the bytes of its path are kept in both directions.
QUrl UrlOfPath(std::string_view path);
std::string PathOfUrl(const QUrl& url);

// A window's title. "[*]" is a placeholder of the toolkit's; doubled it stands for itself.
inline QString PlainTitle(std::string_view utf8) {
  return Utf8ToQString(utf8).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

inline QColor ColorToQt(Color color) { return {RedOf(color), GreenOf(color), BlueOf(color)}; }
inline Color ColorFromQt(const QColor& color) { return Rgb(color.red(), color.green(), color.blue()); }

inline QByteArray ToBytes(std::string_view text) { return {text.data(), static_cast<qsizetype>(text.size())}; }
inline std::string_view ViewOf(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

}  // namespace pelmar
