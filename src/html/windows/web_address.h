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

}  // namespace pelmar
