#include "texttools/appearance.h"

#include <algorithm>

#include "platform/color.h"
#include "shell/editor.h"
#include "shell/menu_table.h"
#include "text/number_text.h"

namespace pelmar {
namespace {

constexpr Color kBlack = Rgb(0, 0, 0);
constexpr Color kWhite = Rgb(255, 255, 255);
constexpr Color kDosGrey = Rgb(194, 194, 194);
constexpr int kDosWidth = 9210;  // twips
constexpr int kDosHeight = 6675;
constexpr double kMostPoints = 9999;  // larger than any font

void ApplyBasicLook(MainLook& view) {
  view.SetEditorFont(std::string(kSansSerif));
  view.SetEditorItalic(false);
  view.MarkItalic(false);
  view.SetEditorBold(false);  // required: the check mark of mnuEditBold stays as it was
  view.SetEditorFontSize(8);
  view.SetEditorColors(kBlack, kWhite);
}

}  // namespace

Color InvertedColor(Color color) { return kWhite - color; }

void ApplyDosLook(MainView& view) {
  view.SetNormalState();
  view.SetOuterSize(kDosWidth, kDosHeight);
  ApplyLook(view, {std::string(kCourier), kDosGrey, kBlack});
}

void ApplyLook(MainView& view, const EditorLook& look) {
  view.SetEditorBold(look.bold);
  view.SetEditorItalic(look.italic);
  view.MarkBold(look.bold);
  view.MarkItalic(look.italic);
  view.SetEditorColors(look.fore_color, look.back_color);
  if (!look.font_name.empty()) view.SetEditorFont(look.font_name);
  view.SetEditorFontSize(static_cast<int>(look.font_size));
}

void AddAppearanceCommands(Editor& editor, MainView& view) {
  Commands& commands = editor.commands;
  for (const FontSizeItem& size : FontSizeItems())
    commands.Add(size.item, [&view, points = size.points] { view.SetEditorFontSize(points); });
  commands.Add("mnuEditBold", [&view] {
    const bool bold = !view.Look().bold;
    view.SetEditorBold(bold);
    view.MarkBold(bold);
  });
  commands.Add("mnuitalic", [&view] {
    const bool italic = !view.Look().italic;
    view.SetEditorItalic(italic);
    view.MarkItalic(italic);
  });
  commands.Add("mnuinvert", [&view] {
    const EditorLook look = view.Look();
    view.SetEditorColors(InvertedColor(look.fore_color), InvertedColor(look.back_color));
  });
  commands.Add("Mnu_Change_Alingment", [&view] { view.NextAlignment(); });
  for (const std::string_view name : {"mnu_Text_Dos", "Dos"}) commands.Add(name, [&view] { ApplyDosLook(view); });
  commands.Add("mnubasic", [&view] { ApplyBasicLook(view); });
}

SizeField NormalizeSize(std::string_view typed) {
  const int size = static_cast<int>(std::clamp(LeadingNumber(typed), 1.0, kMostPoints));  // no font has size 0
  return {std::to_string(size).substr(0, 2), size};
}

}  // namespace pelmar
