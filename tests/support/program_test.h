// The fixture of window tests: the whole program over a scripted platform, complete but not started.
//
//   TEST_F(ProgramTest, HrWritesTheWidthInPercent) {
//     ExpectDocument("mnuhr", "Check1! Command1!", "a[b|c", R"(a<HR Width = "1%">|bc)");
//   }
//
// steps.h documents the steps, marked_text.h the documents.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <stdexcept>
#include <string>

#include "program/program.h"
#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "support/steps.h"

namespace pelmar {

struct ProgramTest : testing::Test {
  ScriptedPlatform platform;
  Program program{platform};
  const ProgramParts& parts = program.Parts();
  WindowServices& services = parts.services;  // a test may set pick_color or show_in_browser
  MainWindow& main = parts.main;
  Editor& editor = parts.editor;
  TextBuffer& text = editor.text;  // the document

  // Shows the window and returns it.
  template <class Window>
  Window& Open() {
    Window& window = parts.windows.Get<Window>();
    window.Present();
    return window;
  }

  // Hides the other windows, runs the command and returns the window that the command shows. For a command that waits
  // in a modal dialog, use InDialog of steps.h.
  QWidget& Open(const std::string& command) {
    while (QWidget* window = VisibleWindow()) window->hide();
    editor.commands.Run(command);
    if (QWidget* window = VisibleWindow()) return *window;
    throw std::logic_error("no window was opened by " + command);
  }

  // A visible window or dialog other than the main window. Null if there is none.
  [[nodiscard]] QWidget* VisibleWindow() const {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      const bool is_window = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
      if (is_window && window != &main && window->isVisible()) return window;
    }
    return nullptr;
  }

  // Opens the window of the command, sets the document to `before` and runs the steps in the window. Expects the
  // document `after`. A failure names the caller's line.
  void ExpectDocument(const std::string& command, const char* steps, const char* before, const std::string& after,
                      const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
    const QWidget& window = Open(command);
    PutMarked(text, before);
    Work(window, steps);
    const std::string seen = Marked(text);
    if (seen == after) return;
    ADD_FAILURE_AT(file, line) << command << " after " << steps << "\n  expected: " << after
                               << "\n  seen:     " << seen;
  }
};

}  // namespace pelmar
