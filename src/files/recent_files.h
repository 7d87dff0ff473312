// The ten recent files. The toolbar's button "Recent" shows them, and the settings store them. Entries count from 1,
// newest first. A path is the bytes that the system gave.
#pragma once

#include <string>

#include "platform/platform.h"
#include "shell/settings_record.h"
#include "text/listeners.h"

namespace pelmar {

class RecentFiles {
 public:
  RecentFiles(SettingsRecord& settings, Platform& platform) : settings_(settings), platform_(platform) {}

  [[nodiscard]] const std::string& Path(int number) const;
  // The text of the entry's menu item.
  [[nodiscard]] std::string ItemText(int number) const;

  // Moves a path to the first place. A new path is inserted there, and the last entry is dropped. An empty path changes
  // nothing.
  void PushRecentFile(const std::string& path);
  // Calls PushRecentFile, and adds the path to the recent documents of the desktop.
  void Remember(const std::string& path);

  Listeners<> changed;

 private:
  SettingsRecord& settings_;
  Platform& platform_;
};

}  // namespace pelmar
