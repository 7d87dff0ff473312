#include "shell/status.h"

#include "shell/common.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::size_t kSelectionShown = 50;

}  // namespace

PanelTexts ComputePanels(const TextBuffer& box, bool line_counting) {
  PanelTexts panels;
  const std::string_view text = box.Text();
  const std::size_t start = box.SelStart();
  const std::int32_t before = line_counting ? CountLineFeeds(text.substr(0, start)) : 0;
  const std::int32_t selected = line_counting ? CountLineFeeds(box.SelText()) : 0;
  const std::int32_t all = line_counting ? before + selected + CountLineFeeds(text.substr(box.SelEnd())) : 0;
  if (!box.HasSelection()) {
    panels.length = std::string("Počet znaků :"_w) + NumberWithSignBlank(static_cast<std::int64_t>(text.size()));
    panels.position = "Pozice kurzoru :" + NumberWithSignBlank(static_cast<std::int64_t>(start));
    panels.lines = std::string("Řádek "_w) + std::to_string(before) + " z " + std::to_string(all);
  } else {
    panels.length = std::string("Znaky Výběru :"_w) + NumberWithSignBlank(static_cast<std::int64_t>(box.SelLength()));
    panels.position = std::string("Pozice výběru :"_w) + NumberWithSignBlank(static_cast<std::int64_t>(start));
    panels.lines = std::string("Řádeky "_w) + std::to_string(before) + "-" + std::to_string(before + selected) + " z " +
                   std::to_string(all);
  }
  if (!line_counting) panels.lines = "(OFF)";
  return panels;
}

std::string ComputeContent(const TextBuffer& box, const std::optional<std::string>& clipboard) {
  if (clipboard && !box.HasSelection()) return std::string("Schránka : "_w).append(*clipboard);
  return std::string("Výběr : "_w).append(box.SelText().substr(0, kSelectionShown));
}

MenuState ComputeMenuState(const TextBuffer& box, std::string_view current_path,
                           const std::optional<std::string>& clipboard) {
  return {!current_path.empty(), clipboard && !clipboard->empty(), !box.Empty(), box.HasSelection()};
}

}  // namespace pelmar
