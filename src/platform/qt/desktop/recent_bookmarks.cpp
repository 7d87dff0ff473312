#include "platform/qt/desktop/recent_bookmarks.h"

#include <glib.h>

#include <memory>

namespace pelmar {

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

}  // namespace pelmar
