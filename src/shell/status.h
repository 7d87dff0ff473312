// Computes what the status timer shows: the state of the menu items, and the texts of panels 1 to 4 in Windows-1250.
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

// required: panel 3 counts line feeds, so the first line is 0. Without `line_counting`, `lines` is "(OFF)".
PanelTexts ComputePanels(const TextBuffer& buffer, bool line_counting);

// The text of panel 4. `clipboard` is nullopt if the clipboard offers no plain text.
std::string ComputeContent(const TextBuffer& buffer, const std::optional<std::string>& clipboard);

MenuState ComputeMenuState(const TextBuffer& buffer, std::string_view current_path,
                           const std::optional<std::string>& clipboard);

}  // namespace pelmar
