// What the windows and commands of all subsystems are made from. Each subsystem adds its own to it, in a function of
// its windows folder; the parts outlive every window.
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
#include "shell/stand_alone.h"

namespace pelmar {

struct Files;
class MainWindow;
struct FolderBrowser;

// By mode, what shows an accessory that runs as the whole program.
using StandAlones = std::map<StartMode, std::function<void()>>;

// Called before an error or the system ends the program. Each keeps what its window holds and returns the lines that
// tell where, in UTF-8, or "" where there was nothing to keep.
using Keepers = std::vector<std::function<std::string()>>;

// The folder browsers of the dialogs that pick files, each made when it is asked for.
using FilePickers = std::vector<std::function<FolderBrowser()>>;

// What the program offers its windows beside what it is made of.
struct Doors {
  std::function<void()> store_settings;  // without the window's state
  std::function<StartMode()> mode;
  std::function<bool()> closed;  // the person has let the program end, and what is stored is final
  // Shows a file in the internal browser; the path is UTF-8, an empty one does nothing. Set by the browser.
  std::function<void(const std::string& path)> show_in_browser;
  // Asks for a colour, beginning with the given one. Set by the colour dialog.
  std::function<Color(Color)> pick_color;
};

struct ProgramParts {
  Platform& platform;
  Editor& editor;
  Files& files;
  MainWindow& main;
  WindowRegistry& windows;
  StandAlones& stand_alones;
  Keepers& keepers;
  FilePickers& file_pickers;
  Doors& doors;

  // The doors for windows, which are registered before all of these are set.
  [[nodiscard]] std::function<void(const std::string& path)> BrowserDoor() const;
  [[nodiscard]] std::function<Color(Color)> ColorDoor() const;

  // Registers the window, and the commands of these names to show it. It is made from `with`, where std::ref stands for
  // what isn't copied, and from the main window as its parent.
  template <class Window, class... With>
  void Add(std::initializer_list<std::string_view> names, With... with) const {
    windows.Register<Window>(
        [parent = Parent(), ... with = std::move(with)] { return std::make_unique<Window>(with..., parent); });
    ShowBy(names, typeid(Window));
  }

  // The commands of these names show the window, or bring it to the front.
  template <class Window>
  void ShowBy(std::initializer_list<std::string_view> names) const {
    ShowBy(names, typeid(Window));
  }

  // The window is one that picks files: its lists `Drive1` and `Dir1` follow the working folders.
  template <class Window>
  void AddFilePicker() const {
    AddFilePicker(typeid(Window));
  }

 private:
  QWidget* Parent() const;
  void ShowBy(std::initializer_list<std::string_view> names, std::type_index window) const;
  void AddFilePicker(std::type_index window) const;
};

// What each subsystem adds, defined in its windows folder. Program calls them all.
void AddShellWindows(const ProgramParts& parts);
void AddFileWindows(const ProgramParts& parts);
void AddTextWindows(const ProgramParts& parts);
void AddPageWindows(const ProgramParts& parts);  // whole pages, framesets, tables
void AddLinkWindows(const ProgramParts& parts);  // pictures, links, sample documents
void AddTagWindows(const ProgramParts& parts);   // tags, lists, small fragments
void AddBrowserWindows(const ProgramParts& parts);
void AddCipherWindows(const ProgramParts& parts);
void AddToolWindows(const ProgramParts& parts);   // calculator, tables, colours
void AddNotesWindows(const ProgramParts& parts);  // notes and their checkpoints, character analysis

}  // namespace pelmar
