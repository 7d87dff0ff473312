#include "shell/status.h"

#include "shell/common.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::size_t kSelectionShown = 50;

}  // namespace

PanelTexts ComputePanels(const TextBuffer& buffer, bool line_counting) {
  PanelTexts panels;
  const std::string_view text = buffer.Text();
  const std::size_t start = buffer.SelStart();
  const auto count = [line_counting](std::string_view part) { return line_counting ? CountLineFeeds(part) : 0; };
  const std::int32_t before = count(text.substr(0, start)), selected = count(buffer.SelText());
  const std::int32_t all = before + selected + count(text.substr(buffer.SelEnd()));
  if (!buffer.HasSelection()) {
    panels.length = std::string("Počet znaků :"_w) + NumberWithSignBlank(static_cast<std::int64_t>(text.size()));
    panels.position = "Pozice kurzoru :" + NumberWithSignBlank(static_cast<std::int64_t>(start));
    panels.lines = std::string("Řádek "_w) + std::to_string(before) + " z " + std::to_string(all);
  } else {
    panels.length =
        std::string("Znaky Výběru :"_w) + NumberWithSignBlank(static_cast<std::int64_t>(buffer.SelLength()));
    panels.position = std::string("Pozice výběru :"_w) + NumberWithSignBlank(static_cast<std::int64_t>(start));
    panels.lines = std::string("Řádeky "_w) + std::to_string(before) + "-" + std::to_string(before + selected) + " z " +
                   std::to_string(all);
  }
  if (!line_counting) panels.lines = "(OFF)";
  return panels;
}

std::string ComputeContent(const TextBuffer& buffer, const std::optional<std::string>& clipboard) {
  const bool shows_clipboard = clipboard && !buffer.HasSelection();
  std::string content(shows_clipboard ? "Schránka : "_w : "Výběr : "_w);
  content += shows_clipboard ? std::string_view(*clipboard) : buffer.SelText().substr(0, kSelectionShown);
  return content;
}

MenuState ComputeMenuState(const TextBuffer& buffer, std::string_view current_path,
                           const std::optional<std::string>& clipboard) {
  return {!current_path.empty(), clipboard && !clipboard->empty(), !buffer.Empty(), buffer.HasSelection()};
}

}  // namespace pelmar
