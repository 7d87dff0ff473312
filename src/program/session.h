// The start and the end of a session. Reads and writes the settings file and the file with the last text, and writes
// the file with all five texts. The order of the steps is required.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "files/files.h"
#include "shell/editor.h"
#include "shell/main_view.h"
#include "shell/session_state.h"

namespace pelmar {

class Session : public SessionState {
 public:
  // Functions that show windows during the start. The main window stays hidden until show_main.
  struct Callbacks {
    std::function<void()> show_config;  // modal
    std::function<void()> show_main;
    std::function<void()> show_start;  // instead of the main window
    std::function<void(StartMode)> show_accessory;
  };
  Session(MainView& view, Callbacks callbacks, Editor& editor, Files& files);

  // Loads the text and the settings, and asks for the person's name and e-mail address if one is missing.
  void Load();
  // Call if the clipboard's content arrives after the start. Inserts the content into an empty document that wasn't
  // changed since the load, and doesn't mark the document as changed.
  void TakeLateClipboard();
  // Opens the file or shows the window that the command line names. `tail` is the joined command line (UTF-8).
  void Act(std::string_view tail);

  // Calls StoreAll, then asks about unsaved changes. False if the person doesn't want to close.
  bool Close();
  // Writes the files of the current text, of all texts and of the settings. Throws RuntimeError if a write fails.
  void StoreAll();

  [[nodiscard]] StartMode Mode() const override { return mode_; }
  [[nodiscard]] bool Closed() const override { return closed_; }
  void StoreSettings() override;

 private:
  void LoadText();
  void TakeClipboard();
  void LoadSettings();
  void ApplyLook();
  bool MayEnd();
  void Store(std::string_view name, std::string_view bytes);
  std::string InstallPath(std::string_view name);

  MainView& view_;
  Callbacks callbacks_;
  Documents& documents_;
  SettingsRecord& settings_;
  Files& files_;
  Platform& platform_;
  FileNumber& file_number_;
  StartMode mode_ = StartMode::kEditor;
  std::uint64_t loaded_revision_ = 0;  // the revision of the text after the load
  bool closed_ = false;
};

// The content of "autosave_all_files.txt": a block for each document, also for an empty one.
std::string AllFilesText(const Documents& documents);

}  // namespace pelmar
