#include "texttools/appearance.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/color.h"
#include "platform/twips.h"
#include "shell/layout_picker.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

struct AppearanceTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  PlainView view;

  AppearanceTest() { AddAppearanceCommands(editor, view); }
  // The look behind a command, and the marks that it set in the menu.
  std::string After(const char* command) {
    view.calls.clear();
    editor.commands.Run(command);
    std::string shown = view.look.font_name + ' ' + std::to_string(std::lround(view.look.font_size));
    if (view.look.bold) shown += " bold";
    if (view.look.italic) shown += " italic";
    shown += ' ' + ColorToHex(view.look.fore_color) + ' ' + ColorToHex(view.look.back_color);
    for (const std::string& call : view.calls)
      if (call.ends_with(" mark") || call == "normal") shown += ", " + call;
    return shown;
  }
};

TEST_F(AppearanceTest, StyleSizeColoursAndAlignment) {
  view.look = {"Font", Rgb(1, 2, 3), Rgb(255, 255, 255), 8, false, false};
  EXPECT_EQ(After("mnu17"), "Font 17 #010203 #FFFFFF");
  EXPECT_EQ(After("mnuEditBold"), "Font 17 bold #010203 #FFFFFF, bold mark");
  EXPECT_EQ(After("mnuitalic"), "Font 17 bold italic #010203 #FFFFFF, italic mark");
  EXPECT_EQ(After("mnuEditBold"), "Font 17 italic #010203 #FFFFFF, no bold mark");
  EXPECT_EQ(After("mnuinvert"), "Font 17 italic #FEFDFC #000000");
  EXPECT_EQ(After("mnuinvert"), "Font 17 italic #010203 #FFFFFF");
  for (const int expected : {1, 2, 0}) {
    editor.commands.Run("Mnu_Change_Alingment");
    EXPECT_EQ(view.alignment, expected);
  }
}

TEST_F(AppearanceTest, DosAndBasicLook) {
  view.look.bold = view.look.italic = true;
  EXPECT_EQ(After("Dos"), "Courier New 8 #C2C2C2 #000000, normal, no bold mark, no italic mark");
  EXPECT_EQ(view.place, (TwipsRect{0, 0, 9210, 6675}));
  view.look.bold = view.look.italic = true;
  view.place = {};
  EXPECT_EQ(After("mnubasic"), "MS Sans Serif 8 #000000 #FFFFFF, no italic mark");  // required: not that of bold
  EXPECT_EQ(view.place, TwipsRect{});
}

TEST(Visual, ALookWithoutAFontLeavesTheFont) {
  PlainView view;
  view.look = {"Terminal", 1, 2, 12, false, true};
  ApplyLook(view, {"", 3, 4, 11, true, false});
  EXPECT_EQ(view.calls, (std::vector<std::string>{"bold", "italic", "bold mark", "no italic mark", "colors", "size"}));
  EXPECT_EQ(view.look.font_name, "Terminal");
  EXPECT_EQ(view.look.font_size, 8);  // a size outside the six
  ApplyLook(view, {"Courier New"});
  EXPECT_EQ(view.look.font_name, "Courier New");
}

TEST(Visual, SizeField) {
  const std::pair<std::string_view, SizeField> cases[] = {
      {"", {"1", 1}},       {"00", {"1", 1}},  {"11", {"11", 11}}, {"08", {"8", 8}},
      {"123", {"12", 123}}, {"abc", {"1", 1}}, {"9x", {"9", 9}},   {"99999", {"99", 9999}},
  };
  for (const auto& [typed, field] : cases) EXPECT_EQ(NormalizeSize(typed), field) << typed;
}

TEST(LayoutPicker, NineParts) {
  const std::tuple<int, int, std::string_view, TwipsRect> cases[] = {
      {1, 1, "Vlevo nahoře", {0, 0, 600, 400}},    {1, 2, "Nahoře", {0, 0, 1200, 400}},
      {1, 3, "Vpravo nahoře", {600, 0, 600, 400}}, {2, 1, "Vlevo", {0, 0, 600, 800}},
      {2, 2, "Maximalizace", {0, 0, 1200, 800}},   {2, 3, "Vpravo", {600, 0, 600, 800}},
      {3, 1, "Vlevo dole", {0, 400, 600, 400}},    {3, 2, "Dole", {0, 400, 1200, 400}},
      {3, 3, "Vpravo dole", {600, 400, 600, 400}},
  };
  for (const auto& [row, column, name, place] : cases) {
    EXPECT_EQ(PlaceOfCell(row, column, 1200, 800).name, name);
    EXPECT_EQ(PlaceOfCell(row, column, 1200, 800).place, place) << name;
  }
}

}  // namespace
}  // namespace pelmar
