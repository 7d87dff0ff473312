// What the status timer shows: the state that enables menu items, on each tick, and the texts of panels 1 to 4, where
// what they tell of has changed. Panel texts are Windows-1250, because they show the document and the clipboard.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/menu_table.h"
#include "text/text_buffer.h"

namespace pelmar {

struct PanelTexts {
  std::string length;    // panel 1
  std::string position;  // panel 2
  std::string lines;     // panel 3
};

// Only line feeds count as lines, from 0.
PanelTexts ComputePanels(const TextBuffer& box, bool line_counting);

// Panel 4. `clipboard` is nothing where the clipboard offers no plain text.
std::string ComputeContent(const TextBuffer& box, const std::optional<std::string>& clipboard);

MenuState ComputeMenuState(const TextBuffer& box, std::string_view current_path,
                           const std::optional<std::string>& clipboard);

}  // namespace pelmar
