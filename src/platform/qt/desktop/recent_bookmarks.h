// Adds an entry to the content of the desktop's list of recent documents.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace pelmar {

// Returns the list `xbel` with an entry for the file `path` (absolute, from PathToQString), opened by this program at
// `now`. An existing entry is updated; all other content is kept. An empty `xbel` gives a new list. The result is empty
// if `xbel` is not a valid list; then the file must not be changed.
QByteArray AddBookmark(const QByteArray& xbel, const QString& path, const QString& mime, const QDateTime& now);

}  // namespace pelmar
