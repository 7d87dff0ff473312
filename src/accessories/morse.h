// Encodes text as Morse code, and lists the signs in the menus of the window Morse. Texts are Windows-1250. required:
// the menus and the encoder have different signs for the full stop and the apostrophe.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace pelmar {

struct Editor;

// Each sign ends in "/". Letters first become capitals without diacritics. A character without a sign is copied without
// "/". required: a blank has the sign of the slash. required: "CH" becomes the sign of CH and then that of H.
std::string TextToMorse(std::string_view text);

// Names and captions are UTF-8.
struct MorseItem {
  std::string_view name;
  std::string_view caption;
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
