#include "platform/qt/convert.h"

#include "text/codepage.h"

namespace pelmar {
namespace {

// This value plus a byte that is not UTF-8 gives a low surrogate. Decoded UTF-8 never contains a lone surrogate.
constexpr char16_t kEscape = 0xDC00;

bool IsEscape(const QString& path, qsizetype at) {
  const char16_t unit = path[at].unicode();
  return unit >= kEscape + 0x80 && unit <= kEscape + 0xFF && (at == 0 || !path[at - 1].isHighSurrogate());
}

// `malformed` returns the replacement for a byte that is not UTF-8.
template <typename Malformed>
QString Decoded(std::string_view utf8, Malformed malformed) {
  if (IsUtf8(utf8)) return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  QString string;
  for (std::size_t at = 0; at < utf8.size();) {
    const auto byte = static_cast<unsigned char>(utf8[at]);
    const char32_t character = DecodeUtf8(utf8, at);
    if (character == kMalformedUtf8)
      string += QChar(malformed(byte));
    else
      string += QString::fromUcs4(&character, 1);
  }
  return string;
}

}  // namespace

QString TextToQString(std::string_view text) {
  QString string(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  for (std::size_t i = 0; i < text.size(); ++i)
    string[static_cast<qsizetype>(i)] = QChar(UnicodeOf(static_cast<unsigned char>(text[i])));
  return string;
}

std::string TextFromQString(const QString& string) {
  const QString composed = string.normalized(QString::NormalizationForm_C);
  return FromUtf16({reinterpret_cast<const char16_t*>(composed.utf16()), static_cast<std::size_t>(composed.size())});
}

QString Utf8ToQString(std::string_view utf8) {
  return Decoded(utf8, [](unsigned char byte) { return UnicodeOf(byte); });
}

QString PathToQString(std::string_view path) {
  return Decoded(path, [](unsigned char byte) { return static_cast<char16_t>(kEscape + byte); });
}

std::string PathFromQString(const QString& path) {
  std::string bytes;
  qsizetype from = 0;
  for (qsizetype at = 0; at < path.size(); ++at) {
    if (!IsEscape(path, at)) continue;
    bytes += path.mid(from, at - from).toStdString();
    bytes += static_cast<char>(path[at].unicode() - kEscape);
    from = at + 1;
  }
  return bytes + path.mid(from).toStdString();
}

QString ShownPath(const QString& path) {
  QString shown = path;
  for (qsizetype at = 0; at < path.size(); ++at)
    if (IsEscape(path, at)) shown[at] = QChar(UnicodeOf(static_cast<unsigned char>(path[at].unicode() - kEscape)));
  return shown;
}

QUrl UrlOfPath(std::string_view path) {
  if (IsUtf8(path)) return QUrl::fromLocalFile(Utf8ToQString(path));
  return QUrl::fromEncoded("file://" + ToBytes(path).toPercentEncoding("/"));
}

std::string PathOfUrl(const QUrl& url) {
  if (!url.host().isEmpty() && url.host() != QLatin1String("localhost")) return url.toLocalFile().toStdString();
  return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

}  // namespace pelmar
