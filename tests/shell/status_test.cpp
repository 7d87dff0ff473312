#include "shell/status.h"

#include <gtest/gtest.h>

#include "text/codepage.h"

namespace pelmar {
namespace {

// The three panels of a text with this selection.
std::string Panels(const std::string& text, std::size_t from, std::size_t to, bool line_counting = true) {
  TextBuffer box;
  box.SetText(text);
  box.Select(from, to);
  const PanelTexts panels = ComputePanels(box, line_counting);
  return panels.length + '|' + panels.position + '|' + panels.lines;
}

TEST(Status, PanelsTellOfTheTextOrTheSelection) {
  EXPECT_EQ(Panels("", 0, 0), "Počet znaků : 0|Pozice kurzoru : 0|Řádek 0 z 0"_w);
  EXPECT_EQ(Panels("a\r\nb\rc\n\n", 7, 7), "Počet znaků : 8|Pozice kurzoru : 7|Řádek 2 z 3"_w);
  EXPECT_EQ(Panels("a\r\nb", 4, 4, false), "Počet znaků : 4|Pozice kurzoru : 4|(OFF)"_w);
  EXPECT_EQ(Panels("a\r\nb\r\nc", 3, 0), "Znaky Výběru : 3|Pozice výběru : 0|Řádeky 0-1 z 2"_w);
  EXPECT_EQ(Panels("a\r\nb\r\nc", 6, 7), "Znaky Výběru : 1|Pozice výběru : 6|Řádeky 2-2 z 2"_w);
}

TEST(Status, ContentAndMenuState) {
  TextBuffer box;
  EXPECT_EQ(ComputeContent(box, std::nullopt), "Výběr : "_w);
  EXPECT_EQ(ComputeContent(box, ""), "Schránka : "_w);
  EXPECT_EQ(ComputeContent(box, std::string(64000, 'x')).size(), 64011u);
  EXPECT_EQ(ComputeMenuState(box, "", ""), (MenuState{false, false, false, false}));
  box.SetText(std::string(60, 'c'));
  box.Select(1, 60);
  EXPECT_EQ(ComputeContent(box, "clip"), std::string("Výběr : "_w) + std::string(50, 'c'));
  EXPECT_EQ(ComputeMenuState(box, "/a", "x"), (MenuState{true, true, true, true}));
}

}  // namespace
}  // namespace pelmar
