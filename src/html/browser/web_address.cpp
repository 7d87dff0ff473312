#include "html/browser/web_address.h"

#include <QFileInfo>

#include "platform/paths.h"
#include "platform/qt/convert.h"
#include "text/utf8.h"

namespace pelmar {
namespace {

constexpr QLatin1String kFile("file://");

}  // namespace

QUrl UrlOfAddress(const QString& address) {
  const QString text = address.trimmed();
  if (!text.startsWith(kFile, Qt::CaseInsensitive)) return text.isEmpty() ? QUrl() : QUrl::fromUserInput(text);
  const QString path = text.mid(kFile.size());
  if (QFileInfo::exists(path)) return QUrl::fromLocalFile(path);
  const qsizetype hash = path.lastIndexOf(QLatin1Char('#'));
  if (!QFileInfo::exists(path.left(hash))) return {text};  // without "#", this is the whole path again
  QUrl url = QUrl::fromLocalFile(path.left(hash));
  url.setFragment(path.mid(hash + 1));
  return url;
}

QString AddressOfFile(std::string_view path) {
  return IsUtf8(path) ? Utf8ToQString(PathToFileUrl(path)) : QString::fromLatin1(UrlOfPath(path).toEncoded());
}

QString AddressOfUrl(const QUrl& url) {
  if (!url.isLocalFile() || url.hasQuery()) return url.toString();
  const QString address = AddressOfFile(PathOfUrl(url));
  return url.hasFragment() ? address + QLatin1Char('#') + url.fragment() : address;
}

}  // namespace pelmar
