// Between the addresses that a person reads and writes and the URLs that the web view takes. The program writes a
// file's address with nothing encoded ("file:///home/jan/moje stránka.html"), and it stays readable that way.
#pragma once

#include <QString>
#include <QUrl>
#include <string_view>

namespace pelmar {

// A file's address names the file as it stands where there is one, signs like "#" and "%" included. Anything else is
// taken as a browser takes it: a path, a host without "http://" or a full address. Invalid where it makes no sense.
QUrl UrlOfAddress(const QString& address);

QString AddressOfUrl(const QUrl& url);
// Percent-encoded where the path is no UTF-8, since a person couldn't write it otherwise.
QString AddressOfFile(std::string_view path);

inline bool IsOfTheNet(const QUrl& url) {
  return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

// Whether a page of this address may be shown: of the net (http, https), a file, data, or the empty page. All others
// lead into the engine, where some end the whole program, or to what it doesn't know.
inline bool MayBeShown(const QUrl& url) {
  const QString scheme = url.scheme();
  for (const char* shown : {"http", "https", "file", "data"})
    if (scheme == QLatin1String(shown)) return true;
  return url.toString() == QLatin1String("about:blank");
}

inline constexpr int kLongestShown = 300;  // characters of an address in a message

// A text for a message, with dots where it is longer.
inline QString Shortened(const QString& text, int most) {
  return text.size() <= most ? text : text.left(most) + QLatin1String(" ...");
}

}  // namespace pelmar
