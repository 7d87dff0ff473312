#include "texttools/appearance.h"

#include <gtest/gtest.h>

#include <algorithm>

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
  [[nodiscard]] bool Told(const char* call) const { return std::ranges::find(view.calls, call) != view.calls.end(); }
};

TEST_F(AppearanceTest, StyleSizeAndColours) {
  editor.commands.Run("mnu17");
  EXPECT_EQ(view.look.font_size, 17);
  editor.commands.Run("mnuEditBold");
  EXPECT_TRUE(view.look.bold && Told("bold mark"));
  editor.commands.Run("mnuEditBold");
  EXPECT_FALSE(view.look.bold);
  EXPECT_TRUE(Told("no bold mark"));
  editor.commands.Run("mnuitalic");
  EXPECT_TRUE(view.look.italic && Told("italic mark"));
  view.SetEditorColors(Rgb(1, 2, 3), Rgb(255, 255, 255));
  editor.commands.Run("mnuinvert");
  EXPECT_EQ(view.look.fore_color, Rgb(254, 253, 252));
  EXPECT_EQ(view.look.back_color, 0);
  editor.commands.Run("mnuinvert");
  EXPECT_EQ(view.look.fore_color, Rgb(1, 2, 3));
  for (const int expected : {1, 2, 0}) {
    editor.commands.Run("Mnu_Change_Alingment");
    EXPECT_EQ(view.alignment, expected);
  }
}

TEST_F(AppearanceTest, DosAndBasicLook) {
  view.look.bold = view.look.italic = true;
  editor.commands.Run("Dos");
  EXPECT_TRUE(Told("normal"));
  EXPECT_TRUE(Told("no bold mark") && Told("no italic mark"));
  EXPECT_EQ(view.place.width, 9210);
  EXPECT_EQ(view.place.height, 6675);
  EXPECT_EQ(view.look.fore_color, Rgb(194, 194, 194));
  EXPECT_EQ(view.look.back_color, 0);
  EXPECT_EQ(view.look.font_name, "Courier New");
  EXPECT_FALSE(view.look.bold || view.look.italic);
  view.look.bold = view.look.italic = true;
  view.calls.clear();
  editor.commands.Run("mnubasic");
  EXPECT_EQ(view.look.font_name, "MS Sans Serif");
  EXPECT_FALSE(view.look.bold || view.look.italic);
  EXPECT_FALSE(Told("no bold mark"));  // required: the mark of mnuEditBold stays
  EXPECT_TRUE(Told("no italic mark"));
  EXPECT_EQ(view.look.back_color, 0xFFFFFF);
  EXPECT_EQ(view.place.width, 9210);
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
  const struct {
    std::string_view typed;
    SizeField field;
  } cases[] = {
      {"", {"1", 1}},   {"0", {"1", 1}},      {"00", {"1", 1}},  {"11", {"11", 11}},
      {"08", {"8", 8}}, {"123", {"12", 123}}, {"abc", {"1", 1}}, {"9x", {"9", 9}},
  };
  for (const auto& c : cases) EXPECT_EQ(NormalizeSize(c.typed), c.field) << c.typed;
}

TEST(LayoutPicker, NineParts) {
  const struct {
    int row, column;
    std::string_view name;
    TwipsRect place;
  } cases[] = {
      {1, 1, "Vlevo nahoře", {0, 0, 600, 400}},    {1, 2, "Nahoře", {0, 0, 1200, 400}},
      {1, 3, "Vpravo nahoře", {600, 0, 600, 400}}, {2, 1, "Vlevo", {0, 0, 600, 800}},
      {2, 2, "Maximalizace", {0, 0, 1200, 800}},   {2, 3, "Vpravo", {600, 0, 600, 800}},
      {3, 1, "Vlevo dole", {0, 400, 600, 400}},    {3, 2, "Dole", {0, 400, 1200, 400}},
      {3, 3, "Vpravo dole", {600, 400, 600, 400}},
  };
  for (const auto& c : cases) {
    const ScreenPlace place = PlaceOfCell(c.row, c.column, 1200, 800);
    EXPECT_EQ(place.name, c.name);
    EXPECT_EQ(place.place, c.place) << c.name;
  }
}

}  // namespace
}  // namespace pelmar
