#include "platform/qt/folder_entries.h"

#include <fcntl.h>
#include <mntent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCollatorSortKey>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/qt/convert.h"
#include "platform/qt/czech_collation.h"

namespace pelmar {
namespace {

bool LiesInHidden(const QString& path) { return path.contains(QLatin1String("/.")); }

enum class Kind { kFolders, kFiles };

// The sorted names of the entries of one kind for whose displayed name `wanted` returns true. Usually the folder stores
// the kind of each entry. An entry itself is examined only if the entry is a link or the folder stores no kinds.
QStringList NamesOf(const QString& path, Kind kind, const std::function<bool(const QString&)>& wanted) {
  const QCollator collator = CzechCollator();
  std::vector<std::pair<QCollatorSortKey, QString>> names;
  std::error_code error;
  for (std::filesystem::directory_iterator at(PathFromQString(path), error), end; at != end; at.increment(error)) {
    std::error_code ignored;
    if (!(kind == Kind::kFolders ? at->is_directory(ignored) : at->is_regular_file(ignored))) continue;
    QString name = PathToQString(at->path().filename().native());
    const QString shown = ShownPath(name);
    if (wanted(shown)) names.emplace_back(collator.sortKey(shown), std::move(name));
  }
  std::sort(names.begin(), names.end());
  QStringList result;
  for (auto& name : names) result.append(std::move(name.second));
  return result;
}

bool IsWithin(const QString& path, const QString& place) {
  return path == place || path.startsWith(place.endsWith(u'/') ? place : place + u'/');
}

}  // namespace

QRegularExpression MaskPattern(const QString& mask) {
  QStringList patterns;
  for (const QString& part : mask.split(u';')) {
    QString one = part.trimmed();
    if (one == QLatin1String("*.*")) one = QStringLiteral("*");
    one.replace(u'[', QLatin1String("[[]"));  // "[" is a plain character in a mask
    if (!one.isEmpty()) patterns.append(QRegularExpression::wildcardToRegularExpression(one));
  }
  return QRegularExpression(patterns.join(u'|'), QRegularExpression::CaseInsensitiveOption);
}

bool IsReadableFolder(const QString& path) {
  struct stat state {};
  const std::string native = PathFromQString(path);
  return stat(native.c_str(), &state) == 0 && S_ISDIR(state.st_mode) &&
         faccessat(AT_FDCWD, native.c_str(), R_OK | X_OK, AT_EACCESS) == 0;
}

QString CurrentFolder() {
  std::error_code error;
  const std::filesystem::path folder = std::filesystem::current_path(error);
  return error ? QStringLiteral("/") : PathToQString(folder.native());
}

QString CleanFolder(const QString& path) {
  return QDir::cleanPath(path.startsWith(u'/') ? path : CurrentFolder() + u'/' + path);
}

QStringList SubfoldersOf(const QString& path) {
  const bool with_hidden = LiesInHidden(path);
  return NamesOf(path, Kind::kFolders, [&](const QString& name) { return with_hidden || !name.startsWith(u'.'); });
}

QStringList FilesOf(const QString& path, const QString& mask) {
  static const QRegularExpression begins_with_dot(QStringLiteral("(^|;)\\s*\\."));
  const bool with_hidden = LiesInHidden(path) || mask.contains(begins_with_dot);
  const QRegularExpression pattern = MaskPattern(mask);
  return NamesOf(path, Kind::kFiles, [&](const QString& name) {
    return (with_hidden || !name.startsWith(u'.')) && name.contains(pattern);
  });
}

QStringList MountedPlaces(const QString& home, const QString& mounts) {
  QStringList volumes;
  const std::unique_ptr<FILE, int (*)(FILE*)> table(setmntent(QFile::encodeName(mounts).constData(), "re"), &endmntent);
  std::array<char, 8192> line{};
  mntent entry{};
  while (table && getmntent_r(table.get(), &entry, line.data(), static_cast<int>(line.size())) != nullptr) {
    const QString place = QFile::decodeName(entry.mnt_dir);
    for (const char* usual : {"/media", "/run/media", "/mnt"})
      if (IsWithin(place, QLatin1String(usual))) volumes.append(place);
  }
  QCollator collator = CzechCollator();
  std::sort(volumes.begin(), volumes.end(), collator);
  QStringList places{home, QStringLiteral("/")};
  places += volumes;
  places.removeDuplicates();
  return places;
}

QString PlaceOf(const QString& path, const QStringList& places) {
  const QString clean = QDir::cleanPath(path);
  QString best;
  for (const QString& place : places)
    if (IsWithin(clean, place) && place.size() > best.size()) best = place;
  return best;
}

}  // namespace pelmar
