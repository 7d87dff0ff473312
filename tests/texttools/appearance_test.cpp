#include "texttools/appearance.h"

#include <gtest/gtest.h>

#include "platform/twips.h"
#include "shell/layout_picker.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

std::string Shown(const TwipsRect& place) {
  return std::to_string(place.left) + ',' + std::to_string(place.top) + ' ' + std::to_string(place.width) + 'x' +
         std::to_string(place.height);
}

// The look, the alignment and the window's place, and the calls that set marks or the window's state.
std::string Shown(PlainView& view) {
  std::string shown = Told(view.look) + ' ' + std::to_string(view.alignment) + ' ' + Shown(view.place);
  for (const std::string& call : std::exchange(view.calls, {}))
    if (call.ends_with(" mark") || call == "normal") shown += ", " + call;
  return shown;
}

TEST(Appearance, EachCommandChangesItsPartOfTheLook) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  PlainView view;
  AddAppearanceCommands(editor, view);
  view.look = {"Font", Rgb(1, 2, 3), Rgb(255, 255, 255), 8, false, false};
  const std::pair<const char*, const char*> steps[] = {
      {"mnu17", "Font 17 #010203 #FFFFFF 0 0,0 0x0"},
      {"mnuEditBold", "Font 17 bold #010203 #FFFFFF 0 0,0 0x0, bold mark"},
      {"mnuitalic", "Font 17 bold italic #010203 #FFFFFF 0 0,0 0x0, italic mark"},
      {"mnuEditBold", "Font 17 italic #010203 #FFFFFF 0 0,0 0x0, no bold mark"},
      {"mnuinvert", "Font 17 italic #FEFDFC #000000 0 0,0 0x0"},
      {"mnuinvert", "Font 17 italic #010203 #FFFFFF 0 0,0 0x0"},
      {"Mnu_Change_Alingment", "Font 17 italic #010203 #FFFFFF 1 0,0 0x0"},
      {"Mnu_Change_Alingment", "Font 17 italic #010203 #FFFFFF 2 0,0 0x0"},
      {"Dos", "Courier New 8 #C2C2C2 #000000 2 0,0 9210x6675, normal, no bold mark, no italic mark"},
      {"Mnu_Change_Alingment", "Courier New 8 #C2C2C2 #000000 0 0,0 9210x6675"},
      {"mnuEditBold", "Courier New 8 bold #C2C2C2 #000000 0 0,0 9210x6675, bold mark"},
      // required: not the mark of bold; the window keeps its size
      {"mnubasic", "MS Sans Serif 8 #000000 #FFFFFF 0 0,0 9210x6675, no italic mark"},
  };
  for (const auto& [command, shown] : steps) {
    editor.commands.Run(command);
    EXPECT_EQ(Shown(view), shown) << command;
  }
  ApplyLook(view, {"", 3, 4, 11, true, false});  // no font, and a size outside the six
  EXPECT_EQ(Shown(view), "MS Sans Serif 8 bold #030000 #040000 0 0,0 9210x6675, bold mark, no italic mark");
}

TEST(Visual, SizeField) {
  const std::pair<std::string_view, SizeField> cases[] = {
      {"", {"1", 1}},       {"00", {"1", 1}},  {"11", {"11", 11}}, {"08", {"8", 8}},
      {"123", {"12", 123}}, {"abc", {"1", 1}}, {"9x", {"9", 9}},   {"99999", {"99", 9999}},
  };
  for (const auto& [typed, field] : cases) EXPECT_EQ(NormalizeSize(typed), field) << typed;
}

TEST(LayoutPicker, NineParts) {
  std::string parts;
  for (const int row : {1, 2, 3}) {
    for (const int column : {1, 2, 3}) {
      const ScreenPlace part = PlaceOfCell(row, column, {1000, 30, 1200, 800});
      parts.append(part.name).append(" " + Shown(part.place) + (column < 3 ? "|" : "\n"));
    }
  }
  EXPECT_EQ(parts,
            "Vlevo nahoře 1000,30 600x400|Nahoře 1000,30 1200x400|Vpravo nahoře 1600,30 600x400\n"
            "Vlevo 1000,30 600x800|Maximalizace 1000,30 1200x800|Vpravo 1600,30 600x800\n"
            "Vlevo dole 1000,430 600x400|Dole 1000,430 1200x400|Vpravo dole 1600,430 600x400\n");
}

}  // namespace
}  // namespace pelmar
