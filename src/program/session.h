// The start and the end of a session. The start reads the settings file and the file with the last text. The end writes
// both files, and a third file with the texts of all tabs. The order of the steps is required.
#pragma once

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
  // Functions that show windows during the start.
  struct Callbacks {
    std::function<void()> show_config;  // modal
    std::function<void()> show_main;
    std::function<void()> show_start;  // instead of the main window
    std::function<void(StartMode)> show_accessory;
  };
  Session(MainView& view, Callbacks callbacks, Editor& editor, Files& files);

  // Loads the text and the settings, and asks for the person's name and e-mail address if one is missing.
  void Load();
  // Call if the clipboard's content arrives only after the start. Inserts the content if tab 1 is selected, has no
  // path, is empty and wasn't changed since the load. Doesn't mark the document as changed.
  void TakeLateClipboard();
  // Opens the file or shows the accessory that `tail`, the result of CommandTail, names. If `tail` is empty, shows the
  // welcome dialog or the main window. For "-NOMSG", always shows the main window.
  void Act(std::string_view tail);

  // Calls StoreAll. If there are unsaved changes, then asks whether to close. False if the person refuses.
  bool Close();
  // Writes three files: the current text, the texts of all tabs, the settings. Throws RuntimeError at the first
  // failure.
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
  bool closed_ = false;
};

// The content of "autosave_all_files.txt": the ReadableDocument of each document, also of an empty one.
std::string AllFilesText(const Documents& documents);

}  // namespace pelmar
