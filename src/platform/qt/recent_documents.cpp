#include "platform/qt/recent_documents.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QThread>
#include <cerrno>
#include <optional>
#include <utility>

#include "platform/files/disk_file.h"
#include "platform/qt/convert.h"
#include "platform/qt/recent_bookmarks.h"

namespace pelmar {
namespace {

constexpr qint64 kPatience = 100;  // ms
constexpr quint64 kLongestList = 64u << 20;

// The list opened and locked for writing. Closing gives the lock back.
class LockedList {
 public:
  explicit LockedList(const QByteArray& path) {
    QElapsedTimer clock;
    clock.start();
    do {
      if (TryOnce(path)) return;
      QThread::msleep(5);
    } while (clock.elapsed() < kPatience);
  }
  LockedList(const LockedList&) = delete;
  LockedList& operator=(const LockedList&) = delete;
  ~LockedList() { Close(); }

  [[nodiscard]] bool MayWrite() const { return may_write_; }

 private:
  bool TryOnce(const QByteArray& path) {
    file_ = open(path.constData(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    if (file_ < 0) {
      may_write_ = errno == ENOENT;  // No list yet, nothing to lock.
      return true;
    }
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    // A lock of this open file, since another thread's close of the same list would drop a lock of the process.
    may_write_ = fcntl(file_, F_OFD_SETLK, &lock) == 0 && IsStill(path);
    if (!may_write_) Close();
    return may_write_;
  }

  // False where the list was replaced while we waited for the lock of the old one.
  [[nodiscard]] bool IsStill(const QByteArray& path) const {
    struct stat opened {
    }, named{};
    return fstat(file_, &opened) == 0 && stat(path.constData(), &named) == 0 && opened.st_ino == named.st_ino &&
           opened.st_dev == named.st_dev;
  }

  void Close() {
    if (file_ >= 0) close(std::exchange(file_, -1));
  }

  int file_ = -1;
  bool may_write_ = false;
};

std::string FolderOf(const QString& path) {
  return QFile::encodeName(QFileInfo(path).path() + QLatin1Char('/')).toStdString();
}

}  // namespace

void AddToRecentList(const QString& list_path, const QString& path) {
  const QString mime = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension).name();
  QDir().mkpath(QFileInfo(list_path).path());
  const QByteArray native = QFile::encodeName(list_path);
  const LockedList lock(native);
  if (!lock.MayWrite()) return;
  const FileBytes old = ReadWholeFile(native.toStdString(), kLongestList + 1);
  if ((old.error != 0 && old.error != ENOENT) || old.bytes.size() > kLongestList) return;
  const QByteArray list = AddBookmark(ToBytes(old.bytes), path, mime, QDateTime::currentDateTimeUtc());
  if (!list.isEmpty()) ReplaceFile(native.toStdString(), ViewOf(list), FolderOf(list_path), 0600);
}

RecentDocuments::RecentDocuments(QString list_path) : list_path_(std::move(list_path)) { pool_.setMaxThreadCount(1); }

RecentDocuments::~RecentDocuments() { Wait(); }

void RecentDocuments::Add(const QString& path) {
  pool_.start([list = list_path_, path] { AddToRecentList(list, path); });
}

void RecentDocuments::Wait() { pool_.waitForDone(); }

}  // namespace pelmar
