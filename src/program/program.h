// Puts the program together: platform, editor, main window, session, timer, rescue and the other windows.
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

  // Starts the program. `tail` is the result of CommandTail.
  void Run(const std::string& tail);

  // Call before the system ends the program. Keeps the unsaved notes. If the editor is loaded, and no accessory runs
  // alone, also keeps the unsaved documents and calls Session::StoreAll. Shows no message and asks no question.
  void KeepUnsaved();

  // Call with an error that nobody caught. Keeps the same documents and notes as KeepUnsaved, then shows a message with
  // the error and with the files of the kept texts. Afterwards the caller must end the process.
  void ReportRuntimeError(const RuntimeError& error);

  [[nodiscard]] MainWindow& Main() { return main_; }
  [[nodiscard]] WindowRegistry& Windows() { return windows_; }
  [[nodiscard]] const ProgramParts& Parts() const { return parts_; }

 private:
  void AddWindows();
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
  std::vector<Listening> listenings_;
  WindowServices services_;
  WindowRegistry windows_;  // after the members that the windows use: those are destroyed later
  ProgramParts parts_{platform_, editor_, files_, main_, windows_, session_, services_};
};

// The command-line arguments joined by blanks. If this text is the relative path of an existing file, returns the
// absolute path, without "." and ".." if the file is still the same without them. If the text is a "file://" URL of
// this computer, returns the path in the URL.
std::string CommandTail(const QStringList& arguments);

}  // namespace pelmar
