// Answers the two command-line switches that every Linux program has and that need no window.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace pelmar {

// The text to print for the arguments after the program's name, UTF-8; the program then ends. Nothing unless the only
// argument is one of the two switches.
std::optional<std::string_view> TerminalAnswer(std::span<char* const> arguments);

}  // namespace pelmar
