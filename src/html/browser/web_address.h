// Converts between the addresses that a person sees or types and the URLs of the web view. The address of a file whose
// path is UTF-8 stays readable: the path isn't percent-encoded ("file:///home/jan/moje stránka.html").
#pragma once

#include <QString>
#include <QUrl>
#include <string_view>

namespace pelmar {

// In an address that begins with "file://", the characters "#" and "%" are plain if they are part of an existing file's
// path. Other text may be an absolute path, a host without "http://" or a full address. The URL is invalid if the text
// is no address.
QUrl UrlOfAddress(const QString& address);

QString AddressOfUrl(const QUrl& url);
// Percent-encoded if the path isn't UTF-8, since nobody could type the address otherwise.
QString AddressOfFile(std::string_view path);

inline bool IsOfTheNet(const QUrl& url) {
  return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

// Whether the browser may show the URL: http, https, a file, data, or the empty page. Other schemes are refused, since
// some of them lead to the engine's own pages, and some of these pages end the whole program.
inline bool MayBeShown(const QUrl& url) {
  const QString scheme = url.scheme();
  for (const char* shown : {"http", "https", "file", "data"})
    if (scheme == QLatin1String(shown)) return true;
  return url.toString() == QLatin1String("about:blank");
}

}  // namespace pelmar
