#include "shell/services/program_parts.h"

#include "platform/qt/controls/dialog_window.h"
#include "platform/qt/filelists/file_browser.h"
#include "shell/windows/main/main_window.h"

namespace pelmar {

std::function<void(const std::string& path)> ProgramParts::BrowserCallback() const {
  return [&show = services.show_in_browser](const std::string& path) { show(path); };
}

std::function<Color(Color)> ProgramParts::ColorCallback() const {
  return [&pick = services.pick_color](Color color) { return pick(color); };
}

QWidget* ProgramParts::Parent() const { return &main; }

void ProgramParts::ShowBy(std::initializer_list<std::string_view> names, std::type_index window) const {
  for (const std::string_view name : names)
    editor.commands.Add(name, [&shown = windows, window] { static_cast<DialogWindow&>(shown.Get(window)).Present(); });
}

void ProgramParts::AddFilePicker(std::type_index window) const {
  services.folder_browsers.emplace_back([&shown = windows, window] { return FolderBrowserOf(shown.Get(window)); });
}

}  // namespace pelmar
