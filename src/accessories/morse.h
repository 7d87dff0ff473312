// Encodes text as Morse code, and lists the signs in the menus of the window Morse. Texts are Windows-1250. required:
// the encoder and the menus have separate tables, which differ in a few signs.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace pelmar {

struct Editor;

// Each sign ends in "/". Letters lose their diacritics. A character without a sign stays, without "/". required: a
// blank has the sign of the slash; "CH" has a sign of its own, and the sign of H follows it.
std::string TextToMorse(std::string_view text);

// A menu item: its name, its caption and the sign that it inserts.
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

// The menus, from left to right.
std::span<const MorseMenu> MorseMenus();

// mnuMakeMorse: encodes the selection.
void AddMorseCommand(Editor& editor);

}  // namespace pelmar
