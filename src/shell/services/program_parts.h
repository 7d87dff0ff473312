// The parts from which all subsystems make their windows, and the commands that need windows. Each function
// Add...Windows below is defined beside the windows that it adds. The objects in ProgramParts outlive the windows made
// from them.
#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/color.h"
#include "platform/platform.h"
#include "shell/editor.h"
#include "shell/services/window_registry.h"
#include "shell/session_state.h"

namespace pelmar {

struct Files;
class MainWindow;
struct FolderBrowser;

// Functions that the windows of one subsystem offer to other windows and to Program. The function that registers a
// window also sets the services that this window offers.
struct WindowServices {
  // Shows a file in the internal browser. Does nothing for an empty path.
  std::function<void(const std::string& path)> show_in_browser;
  // Asks for a colour, with the given one as the initial choice.
  std::function<Color(Color)> pick_color;
  // Shows an accessory as the whole program.
  std::map<StartMode, std::function<void()>> show_alone;
  // Keeps the unsaved notes at once, before an error or the system ends the program. Returns a notice for the person
  // about these notes, UTF-8, or "" if there are none.
  std::function<std::string()> keep_notes;
  // The folder browsers of all dialogs that pick files. Each function creates its dialog if necessary.
  std::vector<std::function<FolderBrowser()>> folder_browsers;
};

struct ProgramParts {
  Platform& platform;
  Editor& editor;
  Files& files;
  MainWindow& main;
  WindowRegistry& windows;
  SessionState& session;
  WindowServices& services;

  // Functions that call the services show_in_browser and pick_color. A window may get such a function before the
  // service is set.
  [[nodiscard]] std::function<void(const std::string& path)> BrowserCallback() const;
  [[nodiscard]] std::function<Color(Color)> ColorCallback() const;

  // Registers the window, and commands with these names that show it. The window's constructor gets copies of `with`,
  // then the main window as parent. Use std::ref for an argument that must not be copied.
  template <class Window, class... With>
  void Add(std::initializer_list<std::string_view> names, With... with) const {
    windows.Register<Window>(
        [parent = Parent(), ... with = std::move(with)] { return std::make_unique<Window>(with..., parent); });
    ShowBy(names, typeid(Window));
  }

  // Adds commands with these names that show the window or bring it to the front.
  template <class Window>
  void ShowBy(std::initializer_list<std::string_view> names) const {
    ShowBy(names, typeid(Window));
  }

  // Lets DirSetup set the folder of this window, which has the lists `Drive1` and `Dir1`.
  template <class Window>
  void AddFilePicker() const {
    AddFilePicker(typeid(Window));
  }

 private:
  QWidget* Parent() const;
  void ShowBy(std::initializer_list<std::string_view> names, std::type_index window) const;
  void AddFilePicker(std::type_index window) const;
};

// Each function registers windows and commands of one subsystem. Program calls them all.
void AddShellWindows(const ProgramParts& parts);
void AddFileWindows(const ProgramParts& parts);
void AddTextWindows(const ProgramParts& parts);
void AddPageWindows(const ProgramParts& parts);  // whole pages, framesets, tables
void AddLinkWindows(const ProgramParts& parts);  // pictures, links, sample documents
void AddTagWindows(const ProgramParts& parts);   // tags, lists, small fragments
void AddBrowserWindows(const ProgramParts& parts);
void AddCipherWindows(const ProgramParts& parts);
void AddToolWindows(const ProgramParts& parts);   // calculator, character tables, colours
void AddNotesWindows(const ProgramParts& parts);  // notes, checkpoints of the document in the notes, character analysis

}  // namespace pelmar
