// The entries of a folder for the lists of drives, folders and files, in Czech order. Paths and names come from
// PathToQString. Masks and the order use the displayed names. A folder with tens of thousands of files must open at
// once. So only the name and the kind (file or folder) of each entry are read; the folder itself stores both.
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace pelmar {

// The pattern for the names that match a mask. `mask` may hold several masks, separated by ";". A mask may contain "*"
// and "?", and ignores case. "*.*" and an empty mask match every name.
QRegularExpression MaskPattern(const QString& mask);

// Whether the folder can be listed and entered.
bool IsReadableFolder(const QString& path);

// The current folder of the process.
QString CurrentFolder();
// The absolute path of a folder, without ".", ".." or a separator at its end.
QString CleanFolder(const QString& path);

// The sorted names, or an empty list if the folder can't be read. A link counts as its target. Names that begin with
// "." are hidden: they are listed only inside a hidden folder, and by FilesOf if a mask begins with ".".
QStringList SubfoldersOf(const QString& path);
QStringList FilesOf(const QString& path, const QString& mask);

// The places where a person looks for files: the home folder, "/" and the disks mounted in /media, /run/media and /mnt.
// `mounts` is the path of the system's table of mounts. The disks are not accessed: a network disk whose server is dead
// would block the program.
QStringList MountedPlaces(const QString& home, const QString& mounts = QStringLiteral("/proc/self/mounts"));

// The deepest of the places that contain `path`, or "".
QString PlaceOf(const QString& path, const QStringList& places);

}  // namespace pelmar
