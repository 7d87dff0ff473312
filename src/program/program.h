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

  // Starts the program with the joined command-line arguments (UTF-8).
  void Run(const std::string& tail);

  // Call before the system ends the program. Writes all unsaved texts and the files of Session::StoreAll, without a
  // message or a question.
  void KeepUnsaved();

  // Handles an error that no command caught: keeps the modified documents, then reports the error and the files that
  // hold the documents. The caller then ends the process.
  void ReportRuntimeError(const RuntimeError& error);

  [[nodiscard]] MainWindow& Main() { return main_; }
  [[nodiscard]] WindowRegistry& Windows() { return windows_; }
  [[nodiscard]] const ProgramParts& Parts() const { return parts_; }

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
  std::vector<Listening> listenings_;
  WindowServices services_;
  WindowRegistry windows_;  // after all members that its windows use, so that they outlive it
  ProgramParts parts_{platform_, editor_, files_, main_, windows_, session_, services_};
};

// The command-line arguments joined by blanks. The relative path of an existing file becomes absolute, if possible
// without "." and ".."; a "file://" URL becomes its path.
std::string CommandTail(const QStringList& arguments);

}  // namespace pelmar
