// Computes what the status timer shows: the state of the menu items on each tick, and the texts of panels 1 to 4 when
// the text or the clipboard has changed. Panel texts are Windows-1250.
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

// The number of lines is the number of line feeds.
PanelTexts ComputePanels(const TextBuffer& buffer, bool line_counting);

// The text of panel 4. `clipboard` is nothing if the clipboard offers no plain text.
std::string ComputeContent(const TextBuffer& buffer, const std::optional<std::string>& clipboard);

MenuState ComputeMenuState(const TextBuffer& buffer, std::string_view current_path,
                           const std::optional<std::string>& clipboard);

}  // namespace pelmar
