#include "platform/qt/desktop/recent_documents.h"

#include <glib.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <cerrno>
#include <memory>
#include <utility>

#include "platform/files/descriptor.h"
#include "platform/files/disk_file.h"
#include "platform/qt/convert.h"

namespace pelmar {
namespace {

void AddToList(const QString& list_path, const QString& path) {
  constexpr std::uint64_t kLongestList = 64u << 20;  // bytes; a longer list is cut, so it counts as damaged
  QDir().mkpath(QFileInfo(list_path).path());
  const std::string native = QFile::encodeName(list_path).toStdString();
  const FileBytes old = ReadWholeFile(native, kLongestList);
  if (old.error != 0 && old.error != ENOENT) return;
  const QString mime = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension).name();
  const std::string list = AddBookmark(old.bytes, PathFromQString(path), mime.toStdString());
  if (!list.empty()) ReplaceFile(native, list, FolderOf(native), 0600);
}

}  // namespace

std::string AddBookmark(const std::string& xbel, const std::string& path, const std::string& mime) {
  const std::unique_ptr<GBookmarkFile, decltype(&g_bookmark_file_free)> list(g_bookmark_file_new(),
                                                                             g_bookmark_file_free);
  if (!xbel.empty() && !g_bookmark_file_load_from_data(list.get(), xbel.data(), xbel.size(), nullptr)) return {};
  const std::unique_ptr<char, decltype(&g_free)> url(g_filename_to_uri(path.c_str(), nullptr, nullptr), g_free);
  const std::unique_ptr<GDateTime, decltype(&g_date_time_unref)> now(g_date_time_new_now_utc(), g_date_time_unref);
  g_bookmark_file_set_mime_type(list.get(), url.get(), mime.c_str());
  g_bookmark_file_add_application(list.get(), url.get(), "Pelmar VEX", "pelmar-vex %f");
  g_bookmark_file_set_visited_date_time(list.get(), url.get(), now.get());
  gsize size = 0;
  const std::unique_ptr<char, decltype(&g_free)> bytes(g_bookmark_file_to_data(list.get(), &size, nullptr), g_free);
  return bytes == nullptr ? std::string() : std::string(bytes.get(), size);
}

RecentDocuments::RecentDocuments(QString list_path) : list_path_(std::move(list_path)) { pool_.setMaxThreadCount(1); }

RecentDocuments::~RecentDocuments() { Wait(); }

void RecentDocuments::Add(const QString& path) {
  pool_.start([list = list_path_, path] { AddToList(list, path); });
}

void RecentDocuments::Wait() { pool_.waitForDone(); }

}  // namespace pelmar
