// One entry more in the desktop's list of recent documents, as a function from file to file.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace pelmar {

// `xbel` with the file `path` (absolute, of PathToQString) noted as opened by this program at `now`; a new list where
// `xbel` is empty. The file's own entry is updated where there is one. Everything else goes through as it is: other
// entries, other programs' notes in the same entry, elements that we don't know. An empty result says that `xbel` isn't
// such a list and must be left alone.
QByteArray AddBookmark(const QByteArray& xbel, const QString& path, const QString& mime, const QDateTime& now);

}  // namespace pelmar
