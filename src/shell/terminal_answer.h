// Answers the two command-line switches that every Linux program has and that need no window.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace pelmar {

// The text to print if the only argument after the program's name is one of the two switches, UTF-8; otherwise nothing.
// After the text the program ends.
std::optional<std::string_view> TerminalAnswer(std::span<char* const> arguments);

}  // namespace pelmar
