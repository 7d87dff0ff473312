#include "files/recent_files.h"

#include <algorithm>

#include "text/index.h"

namespace pelmar {

const std::string& RecentFiles::Path(int number) const { return settings_.RecentFiles.at(IndexFromOne(number)); }

std::string RecentFiles::ItemText(int number) const { return "&" + std::to_string(number - 1) + " " + Path(number); }

void RecentFiles::PushRecentFile(const std::string& path) {
  auto& entries = settings_.RecentFiles;
  if (path.empty() || entries.front() == path) return;
  const auto found = std::find(entries.begin(), entries.end(), path);
  const auto last = found == entries.end() ? entries.end() - 1 : found;
  std::rotate(entries.begin(), last, last + 1);
  entries.front() = path;
  changed.Notify();
}

void RecentFiles::Remember(const std::string& path) {
  platform_.AddToRecentDocuments(path);
  PushRecentFile(path);
}

}  // namespace pelmar
