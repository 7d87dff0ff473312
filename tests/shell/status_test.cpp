#include "shell/status.h"

#include <gtest/gtest.h>

#include "text/codepage.h"

namespace pelmar {
namespace {

// The panels and which items are on, in the order of the state's fields.
std::string Shown(const std::string& text, std::size_t from, std::size_t to, bool line_counting = true,
                  std::string_view path = "", const std::optional<std::string>& clipboard = std::nullopt) {
  TextBuffer box;
  box.SetText(text);
  box.Select(from, to);
  const PanelTexts panels = ComputePanels(box, line_counting);
  const MenuState on = ComputeMenuState(box, path, clipboard);
  std::string shown = panels.length + '|' + panels.position + '|' + panels.lines + '|' + ComputeContent(box, clipboard);
  for (const bool state : {on.has_path, on.has_clipboard, on.has_text, on.has_selection}) shown += state ? '+' : '-';
  return ToUtf8(shown);
}

TEST(Status, TellsOfTheTextOrTheSelection) {
  EXPECT_EQ(Shown("", 0, 0), "Počet znaků : 0|Pozice kurzoru : 0|Řádek 0 z 0|Výběr : ----");
  EXPECT_EQ(Shown("a\r\nb\rc\n\n", 7, 7, true, "/a", ""),
            "Počet znaků : 8|Pozice kurzoru : 7|Řádek 2 z 3|Schránka : +-+-");
  EXPECT_EQ(Shown("a\r\nb", 4, 4, false), "Počet znaků : 4|Pozice kurzoru : 4|(OFF)|Výběr : --+-");
  EXPECT_EQ(Shown("a\r\nb\r\nc", 3, 0, true, "", "x"),
            "Znaky Výběru : 3|Pozice výběru : 0|Řádeky 0-1 z 2|Výběr : a\r\n-+++");
  EXPECT_EQ(Shown(std::string(60, 'c') + "\r\n", 1, 60),
            "Znaky Výběru : 59|Pozice výběru : 1|Řádeky 0-0 z 1|Výběr : " + std::string(50, 'c') + "--++");
  EXPECT_EQ(ComputeContent(TextBuffer(), std::string(64000, 'x')).size(), 64011u);
}

}  // namespace
}  // namespace pelmar
