// The program's ten recent files, as the toolbar's "Recent" shows them and the settings record stores them. Entries are
// numbered from 1, the last one used first. Paths are UTF-8.
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
  // What the entry's item in the toolbar says.
  [[nodiscard]] std::string ItemText(int number) const;

  // Puts a path at the head; those before its old place move down by one. An empty path changes nothing.
  void PushRecentFile(const std::string& path);
  // The same, and the system's recent documents get it too.
  void Remember(const std::string& path);

  Listeners<> changed;

 private:
  SettingsRecord& settings_;
  Platform& platform_;
};

}  // namespace pelmar
