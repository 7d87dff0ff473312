// Between the core's strings and Qt's. Text means Windows-1250, path and message mean UTF-8.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>
#include <string>
#include <string_view>

#include "platform/color.h"

namespace pelmar {

QString TextToQString(std::string_view text);
std::string TextFromQString(const QString& string);

inline QString Utf8ToQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
inline std::string Utf8FromQString(const QString& string) { return string.toStdString(); }

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
