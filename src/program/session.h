// From the start of the process to the first edit, and from the request to close to its end. The settings file and the
// file with the last text are read and written here, the file with all five texts is only written. The order of the
// steps is required.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "files/files.h"
#include "shell/editor.h"
#include "shell/main_view.h"
#include "shell/stand_alone.h"

namespace pelmar {

class Session {
 public:
  // How the start goes on. The main window stays hidden until it is shown.
  struct Doors {
    std::function<void()> show_config;  // modal
    std::function<void()> show_main;
    std::function<void()> show_start;  // instead of the main window
    std::function<void(StartMode)> show_accessory;
  };
  Session(MainView& view, Doors doors, Editor& editor, Files& files);

  // The load of the main window: text, settings, and the profile, which is asked for where it is missing.
  void Load();
  // The load's step for a clipboard that is told only later: its text goes into the document while nobody has touched
  // that, and is no change.
  void TakeLateClipboard();
  // Shows what the command tail asks for.
  void Act(std::string_view tail);

  // The close of the main window. Writes the files, then asks; false when the person wants to go on. Throws
  // RuntimeError where a file can't be written.
  bool Close();

  // Writes the settings file, as the close and the profile dialog do. The window's state is taken at the close alone.
  void StoreSettings();

  // True from the close that the person didn't refuse: the program ends as soon as its events are handled, and what is
  // stored is final.
  [[nodiscard]] bool Closed() const { return closed_; }

  [[nodiscard]] StartMode Mode() const { return mode_; }

 private:
  void LoadText();
  void TakeClipboard();
  void LoadSettings();
  void ApplyLook();
  bool MayEnd();
  void Store(std::string_view name, std::string_view bytes);
  std::string InstallPath(std::string_view name);

  MainView& view_;
  Doors doors_;
  Documents& documents_;
  SettingsRecord& settings_;
  Files& files_;
  Platform& platform_;
  FileNumber& file_number_;
  StartMode mode_ = StartMode::kEditor;
  std::uint64_t loaded_revision_ = 0;  // of the text, behind the load
  bool closed_ = false;
};

// "\autosave_all_files.txt": a block for each slot, empty ones too.
std::string AllFilesText(const Documents& documents);

}  // namespace pelmar
