#include "texttools/appearance.h"

#include <gtest/gtest.h>

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

  AppearanceTest() {
    AddAppearanceCommands(editor, view);
    view.look = {"Font", Rgb(1, 2, 3), Rgb(255, 255, 255), 8, false, false};
  }
  // Runs the command and returns the new look, then the marks and the window state that the command set.
  std::string LookAfter(const char* command) {
    view.calls.clear();
    editor.commands.Run(command);
    std::string look = Described(view.look);
    for (const std::string& call : view.calls)
      if (call.ends_with(" mark") || call == "normal") look += ", " + call;
    return look;
  }
};

TEST_F(AppearanceTest, EachCommandChangesItsPartOfTheLook) {
  EXPECT_EQ(LookAfter("mnu17"), "Font 17 #010203 #FFFFFF");
  EXPECT_EQ(LookAfter("mnuEditBold"), "Font 17 bold #010203 #FFFFFF, bold mark");
  EXPECT_EQ(LookAfter("mnuitalic"), "Font 17 bold italic #010203 #FFFFFF, italic mark");
  EXPECT_EQ(LookAfter("mnuEditBold"), "Font 17 italic #010203 #FFFFFF, no bold mark");
  EXPECT_EQ(LookAfter("mnuinvert"), "Font 17 italic #FEFDFC #000000");
  EXPECT_EQ(LookAfter("Dos"), "Courier New 8 #C2C2C2 #000000, normal, no bold mark, no italic mark");
  EXPECT_EQ(view.place, (TwipsRect{0, 0, 9210, 6675}));
  for (const char* command : {"mnuEditBold", "mnuitalic", "mnu17"}) LookAfter(command);
  EXPECT_EQ(LookAfter("mnubasic"), "MS Sans Serif 8 #000000 #FFFFFF, no italic mark");  // required: the bold mark stays
}

TEST_F(AppearanceTest, ALookWithoutAFontKeepsTheFontAndAnUnknownSizeBecomesEight) {
  ApplyLook(view, {"", 3, 4, 11, true, false});
  EXPECT_EQ(Described(view.look), "Font 8 bold #030000 #040000");
}

TEST(Visual, NormalizesATypedSize) {
  const std::pair<std::string_view, SizeField> cases[] = {
      {"", {"1", 1}},       {"00", {"1", 1}},  {"11", {"11", 11}}, {"08", {"8", 8}},
      {"123", {"12", 123}}, {"abc", {"1", 1}}, {"9x", {"9", 9}},   {"99999", {"99", 9999}},
  };
  for (const auto& [typed, field] : cases) EXPECT_EQ(NormalizeSize(typed), field) << typed;
}

TEST(LayoutPicker, CellsCoverTheScreenAHalfOrAQuarterOfIt) {
  const TwipsRect screen{1000, 30, 1200, 800};
  EXPECT_EQ(PlaceOfCell(1, 1, screen).place, (TwipsRect{1000, 30, 600, 400}));
  EXPECT_EQ(PlaceOfCell(2, 2, screen).place, screen);
  EXPECT_EQ(PlaceOfCell(2, 3, screen).place, (TwipsRect{1600, 30, 600, 800}));
  EXPECT_EQ(PlaceOfCell(3, 2, screen).place, (TwipsRect{1000, 430, 1200, 400}));
  std::string names;
  for (int cell = 0; cell < 9; ++cell) names += std::string(PlaceOfCell(cell / 3 + 1, cell % 3 + 1, screen).name) + ' ';
  EXPECT_EQ(names, "Vlevo nahoře Nahoře Vpravo nahoře Vlevo Maximalizace Vpravo Vlevo dole Dole Vpravo dole ");
}

}  // namespace
}  // namespace pelmar
