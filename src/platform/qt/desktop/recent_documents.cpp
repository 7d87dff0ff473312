#include "platform/qt/desktop/recent_documents.h"

#include <fcntl.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QThread>
#include <cerrno>
#include <optional>
#include <utility>

#include "platform/files/descriptor.h"
#include "platform/files/disk_file.h"
#include "platform/qt/convert.h"
#include "platform/qt/desktop/recent_bookmarks.h"

namespace pelmar {
namespace {

constexpr qint64 kLongestLockWait = 100;  // ms
constexpr quint64 kLongestList = 64u << 20;

struct Locked {
  bool may_write = false;
  Descriptor list = Descriptor();  // closing the file releases the lock
};

// A missing list needs no lock.
Locked TryToLock(const std::string& path) {
  Descriptor list(open(path.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK));
  if (!list.IsOpen()) return {.may_write = errno == ENOENT};
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  // Lock the open file, not the process: a lock of the process ends when another thread closes the same list.
  const bool locked = fcntl(list.Number(), F_OFD_SETLK, &lock) == 0 && IsStillNamed(list.Number(), path);
  return {.may_write = locked, .list = std::move(list)};
}

Locked Lock(const std::string& path) {
  QElapsedTimer clock;
  clock.start();
  while (true) {
    Locked locked = TryToLock(path);
    if (locked.may_write || clock.elapsed() >= kLongestLockWait) return locked;
    QThread::msleep(5);
  }
}

}  // namespace

void AddToRecentList(const QString& list_path, const QString& path) {
  const QString mime = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension).name();
  QDir().mkpath(QFileInfo(list_path).path());
  const std::string native = QFile::encodeName(list_path).toStdString();
  const Locked locked = Lock(native);
  if (!locked.may_write) return;
  const FileBytes old = ReadWholeFile(native, kLongestList + 1);
  if ((old.error != 0 && old.error != ENOENT) || old.bytes.size() > kLongestList) return;
  const std::string list = AddBookmark(old.bytes, PathFromQString(path), mime.toStdString());
  if (!list.empty()) ReplaceFile(native, list, FolderOf(native), 0600);
}

RecentDocuments::RecentDocuments(QString list_path) : list_path_(std::move(list_path)) { pool_.setMaxThreadCount(1); }

RecentDocuments::~RecentDocuments() { Wait(); }

void RecentDocuments::Add(const QString& path) {
  pool_.start([list = list_path_, path] { AddToRecentList(list, path); });
}

void RecentDocuments::Wait() { pool_.waitForDone(); }

}  // namespace pelmar
