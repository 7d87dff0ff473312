// What the file browser's lists show: the entries of a folder, by name and kind alone, in Czech order. Paths and names
// are as PathToQString gives them; masks and the order go by what a person sees of them. A folder of
// tens of thousands of files must open at once, so nothing is asked about a file beyond what its folder says.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace pelmar {

// Several masks separated by ";", of "*" and "?", case ignored. "*.*" is every name, and so is no mask at all.
bool MatchesMask(QStringView name, const QStringList& masks);
QStringList SplitMask(const QString& mask);

// False where the folder can't be listed and entered.
bool IsReadableFolder(const QString& path);

// The current folder of the process.
QString CurrentFolder();
// The whole path of a folder, without "." and "..", and without a separator at its end.
QString CleanFolder(const QString& path);

// The names, sorted. Those that begin with a full stop are hidden from both: folders unless `path` itself lies in a
// hidden one, files also unless a mask begins with a full stop. Links count as what they lead to. Nothing for a folder
// that can't be read.
QStringList SubfoldersOf(const QString& path);
QStringList FilesOf(const QString& path, const QString& mask);

// Where a person looks for files: their home, "/", and what is mounted at the usual places for removable and other
// disks. `mounts` is the system's table of mounts; no disk is asked, as a dead server would never answer.
QStringList MountedPlaces(const QString& home, const QString& mounts = QStringLiteral("/proc/self/mounts"));

// The place that `path` lies in, the deepest of several; "" where there is none.
QString PlaceOf(const QString& path, const QStringList& places);

}  // namespace pelmar
