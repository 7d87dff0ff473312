// The whole program put together: platform, editor, main window, session, timer, rescue and the other windows. The one
// place that knows all of them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "files/files.h"
#include "platform/platform.h"
#include "platform/runtime_error.h"
#include "program/session.h"
#include "shell/editor.h"
#include "shell/rescued_documents.h"
#include "shell/services/program_parts.h"
#include "shell/services/rescue_keeper.h"
#include "shell/services/status_timer.h"
#include "shell/services/window_registry.h"
#include "shell/windows/main/main_window.h"

namespace pelmar {

class Program {
 public:
  explicit Program(Platform& platform);

  // Starts with the command tail (UTF-8).
  void Run(const std::string& tail);

  // Puts all that isn't saved on the disk at once and in silence, before the system ends the program.
  void KeepUnsaved();

  // What an error that no command caught leads to: the modified documents are kept, the person is told what failed and
  // where they lie. The caller ends the process.
  void TellRuntimeError(const RuntimeError& error);

  [[nodiscard]] MainWindow& Main() { return main_; }
  [[nodiscard]] WindowRegistry& Windows() { return windows_; }

 private:
  void AddWindows();
  void ShowAccessory(StartMode mode);
  [[nodiscard]] bool KeepsDocuments() const;
  bool MayClose();

  Platform& platform_;
  Editor editor_;
  Files files_{editor_};
  MainWindow main_;
  Session session_;
  DocumentsRescue unsaved_{editor_.documents};
  RescueKeeper rescue_;
  bool loaded_ = false;
  StatusTimer timer_;
  std::vector<Listening> heard_;
  StandAlones stand_alones_;
  Keepers keepers_;
  FilePickers file_pickers_;
  Doors doors_;
  WindowRegistry windows_;  // last: its windows look at all the others
};

// The command tail as one string: the arguments joined by one blank, the relative path of an existing file made
// absolute, without "." and ".." where they can go.
std::string CommandTail(const QStringList& arguments);

}  // namespace pelmar
