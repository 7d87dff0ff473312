// The folders, files and disks that a person can choose from, in Czech order. Paths and names have the form of
// PathToQString. All paths of MountedPlaces and the places for PlaceOf have the form of QFile::decodeName. A mask and
// the order apply to the names that ShownPath returns. A folder with tens of thousands of files must open at once. So
// the functions use only the name and the kind (file or folder) of each entry, which most file systems store in the
// folder itself.
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace pelmar {

// The pattern for the names that match `mask`, ignoring case. "*" stands for any characters, "?" for one character.
// Parts of `mask` are separated by ";", and a name must match one part. A part "*.*" and a `mask` without parts
// match every name.
QRegularExpression MaskPattern(const QString& mask);

// Whether the path is a folder that can be listed and entered.
bool IsReadableFolder(const QString& path);

// The current folder of the process. "/" on an error, for instance if the folder no longer exists.
QString CurrentFolder();
// The absolute path, with "." and ".." resolved. There is no separator at the end, except in "/".
QString CleanFolder(const QString& path);

// The sorted names, or an empty list if the folder can't be read. A link counts as its target. Names that begin with
// "." are left out, unless `path` itself leads through a folder with such a name. FilesOf also lists these names if a
// part of `mask` begins with ".".
QStringList SubfoldersOf(const QString& path);
QStringList FilesOf(const QString& path, const QString& mask);

// The places where a person looks for files: `home`, "/" and the disks mounted in or at /media, /run/media and /mnt.
// `mounts` is the path of the system's table of mounts. The disks are not accessed: a network disk whose server is dead
// would block the program.
QStringList MountedPlaces(const QString& home, const QString& mounts = QStringLiteral("/proc/self/mounts"));

// The deepest of the places that contain `path`, or "".
QString PlaceOf(const QString& path, const QStringList& places);

}  // namespace pelmar
