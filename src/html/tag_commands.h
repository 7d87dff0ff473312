// Commands that put tags around the selection or insert a fixed text, for the menu and the toolbar. Texts are
// Windows-1250 and are not escaped.
#pragma once

#include <span>
#include <string_view>

namespace pelmar {

struct Editor;

// A command that puts the selection, or `sample` if nothing is selected, between two tags.
struct TagCommand {
  std::string_view command;
  std::string_view open;
  std::string_view close;
  std::string_view sample;
};
std::span<const TagCommand> TagCommands();

void AddTagCommands(Editor& editor);

}  // namespace pelmar
