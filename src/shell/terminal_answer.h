// Answers the switches `--help` and `--version`, which need no window.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace pelmar {

// The text to print, UTF-8, if the only argument after the program's name is one of the two switches and no file or
// folder has this name. Otherwise nothing.
std::optional<std::string_view> TerminalAnswer(std::span<char* const> arguments);

}  // namespace pelmar
