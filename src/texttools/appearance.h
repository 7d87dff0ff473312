// The look of the main text box by menu commands, and the rules of the dialog Visual.
#pragma once

#include <string>
#include <string_view>

#include "shell/main_view.h"
#include "text/codepage.h"

namespace pelmar {

struct Editor;

// The three fonts that the program offers.
inline constexpr std::string_view kSansSerif = "MS Sans Serif";
inline constexpr std::string_view kCourier = "Courier New";
inline constexpr std::string_view kTerminal = "Terminal";

// The text of every preview of a look.
inline constexpr std::string_view kPreviewText =
    "aábcčdďeéěfghchiíjklmnoóprřsštťuúůvwxyýzž\r\nAÁBCČDĎEÉĚFGHCHIÍJKLMNOÓPQRŘSŠTŤUÚVWXYÝZŽ\r\n"_w;

// Bold, italic, sizes, inverted colours, alignment, the DOS and the basic look.
void AddAppearanceCommands(Editor& editor, MainView& view);

// Normal state, a fixed size, light grey on black.
void ApplyDosLook(MainView& view);

// The whole look with the marks of bold and italic. No name leaves the font as it is.
void ApplyLook(MainView& view, const EditorLook& look);

// A colour's opposite, as plain numbers.
Color InvertedColor(Color color);

// What typing makes of the size field: the text that goes back into it, and the size that the preview takes.
struct SizeField {
  std::string text;
  int size = 1;
  bool operator==(const SizeField&) const = default;
};
SizeField NormalizeSize(std::string_view typed);

}  // namespace pelmar
