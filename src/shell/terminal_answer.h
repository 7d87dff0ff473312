// What a call from the terminal asks for that needs no window: the two switches of every Linux program.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace pelmar {

// The text to print for the arguments behind the program's name, UTF-8; the program ends with it. Nothing where they
// are the command tail: anything but one of the two switches alone.
std::optional<std::string_view> TerminalAnswer(std::span<char* const> arguments);

}  // namespace pelmar
