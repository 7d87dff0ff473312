// Changes of the look of the main text box, for the menu commands and the dialog Visual.
#pragma once

#include <string>
#include <string_view>

#include "shell/main_view.h"
#include "text/codepage.h"

namespace pelmar {

struct Editor;

// The three fonts that the dialog Visual offers.
inline constexpr std::string_view kSansSerif = "MS Sans Serif";
inline constexpr std::string_view kCourier = "Courier New";
inline constexpr std::string_view kTerminal = "Terminal";

// The sample text in the previews of the dialogs Visual and Vytvoř.
inline constexpr std::string_view kPreviewText =
    "aábcčdďeéěfghchiíjklmnoóprřsštťuúůvwxyýzž\r\nAÁBCČDĎEÉĚFGHCHIÍJKLMNOÓPQRŘSŠTŤUÚVWXYÝZŽ\r\n"_w;

// The commands for bold, italic, sizes, inverted colours, alignment, the DOS look and the basic look.
void AddAppearanceCommands(Editor& editor, MainView& view);

// Gives the window its normal state and a fixed size. The text becomes light grey on black, in Courier New of 8 points,
// not bold and not italic.
void ApplyDosLook(MainView& view);

// Sets the look of the text, and the check marks of the menu items for bold and italic. An empty font name keeps the
// font.
void ApplyLook(MainView& view, const EditorLook& look);

// White minus the colour.
Color InvertedColor(Color color);

// What the size field shows after a typed text, and the size of the preview in points.
struct SizeField {
  std::string text;
  int size = 1;
  bool operator==(const SizeField&) const = default;
};
SizeField NormalizeSize(std::string_view typed);

}  // namespace pelmar
