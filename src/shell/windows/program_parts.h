// What the windows and commands of all subsystems are made from. Each subsystem adds its own to it, in one function of
// its windows folder; the parts outlive every window.
#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "shell/editor.h"
#include "shell/session.h"
#include "shell/windows/main_window.h"
#include "shell/windows/window_registry.h"

namespace pelmar {

// By mode, what shows an accessory that runs as the whole program.
using StandAlones = std::map<StartMode, std::function<void()>>;

// Called before an error ends the program. Each keeps what its window holds and returns a line that tells where, in
// UTF-8, or "" where there was nothing to keep.
using Keepers = std::vector<std::function<std::string()>>;

struct ProgramParts {
  Platform& platform;
  Editor& editor;
  MainWindow& main;
  Session& session;
  WindowRegistry& windows;
  StandAlones& stand_alones;
  // Shows a file in the internal browser; the path is UTF-8, an empty one does nothing. Set by the browser.
  std::function<void(const std::string& path)>& show_in_browser;
  Keepers& keepers;

  // The same for windows, which may be made before the browser has set it.
  [[nodiscard]] std::function<void(const std::string& path)> BrowserDoor() const {
    return [&show = show_in_browser](const std::string& path) {
      if (show) show(path);
    };
  }

  // The commands of these names show the window, as far as it isn't on show already.
  template <class Window>
  void ShowBy(std::initializer_list<std::string_view> names) const {
    for (const std::string_view name : names)
      editor.commands.Add(name, [&shown = windows] { shown.Get<Window>().Present(); });
  }
};

}  // namespace pelmar
