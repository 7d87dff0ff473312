// Text as Morse code, and the signs that the window `Morse` offers in its menus. Texts are Windows-1250.
// The encoder and the menus keep two separate tables, which differ in a few signs on purpose.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace pelmar {

struct Editor;

// Each sign ends in "/". Letters lose their diacritics; what has no sign passes through, with no separator.
std::string TextToMorse(std::string_view text);

// One item of a menu: its name, its caption and the signs that it puts in.
struct MorseItem {
  std::string_view name;     // UTF-8
  std::string_view caption;  // UTF-8
  std::string_view sign;
};

struct MorseMenu {
  std::string_view name;
  std::string_view caption;
  std::span<const MorseItem> items;
};

// The menus of signs, from left to right.
std::span<const MorseMenu> MorseMenus();

// mnuMakeMorse: the selection in Morse code.
void AddMorseCommand(Editor& editor);

}  // namespace pelmar
