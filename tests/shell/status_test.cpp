#include "shell/status.h"

#include <gtest/gtest.h>

#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(Status, PanelsWithoutASelection) {
  TextBuffer box;
  PanelTexts panels = ComputePanels(box, true);
  EXPECT_EQ(panels.length, "Počet znaků : 0"_w);
  EXPECT_EQ(panels.position, "Pozice kurzoru : 0");
  EXPECT_EQ(panels.lines, "Řádek 0 z 0"_w);
  EXPECT_EQ(ComputeContent(box, std::nullopt), "Výběr : "_w);
  box.SetText("a\r\nb\r\n");
  box.SetSelStart(6);
  panels = ComputePanels(box, true);
  EXPECT_EQ(panels.length, "Počet znaků : 6"_w);
  EXPECT_EQ(panels.position, "Pozice kurzoru : 6");
  EXPECT_EQ(panels.lines, "Řádek 2 z 2"_w);
  EXPECT_EQ(ComputeContent(box, "clip"), "Schránka : clip"_w);
  EXPECT_EQ(ComputePanels(box, false).lines, "(OFF)");
  EXPECT_EQ(ComputeContent(box, ""), "Schránka : "_w);
  EXPECT_EQ(ComputeContent(box, std::string(64000, 'x')).size(), 64011u);
}

TEST(Status, PanelsWithASelection) {
  TextBuffer box;
  box.SetText("a\r\nb\r\n" + std::string(60, 'c'));
  box.Select(3, 0);
  PanelTexts panels = ComputePanels(box, true);
  EXPECT_EQ(panels.length, "Znaky Výběru : 3"_w);
  EXPECT_EQ(panels.position, "Pozice výběru : 0"_w);
  EXPECT_EQ(panels.lines, "Řádeky 0-1 z 2"_w);
  EXPECT_EQ(ComputeContent(box, "clip"), "Výběr : a\r\n"_w);
  box.Select(6, 66);
  panels = ComputePanels(box, true);
  EXPECT_EQ(panels.lines, "Řádeky 2-2 z 2"_w);
  EXPECT_EQ(ComputeContent(box, "clip"), std::string("Výběr : "_w) + std::string(50, 'c'));
}

TEST(Status, OnlyLineFeedsAreLines) {
  TextBuffer box;
  box.SetText("a\rb\rc\n");
  box.SetSelStart(6);
  EXPECT_EQ(ComputePanels(box, true).lines, "Řádek 1 z 1"_w);
}

TEST(Status, MenuState) {
  TextBuffer box;
  EXPECT_EQ(ComputeMenuState(box, "", ""), (MenuState{false, false, false, false}));
  box.SetText("a");
  box.Select(0, 1);
  EXPECT_EQ(ComputeMenuState(box, "/a", "x"), (MenuState{true, true, true, true}));
}

}  // namespace
}  // namespace pelmar
