#include "shell/rescued_documents.h"

#include <array>

#include "platform/paths.h"

namespace pelmar {

static_assert(kRescuePlaces == kTabCount);

DocumentsRescue::DocumentsRescue(Documents& documents)
    : RescueContent(kDocumentsRescue,
                    {.found = "Program minule neskončil řádně.\r\nPočet zachovaných dokumentů: ",
                     .wanted = "Vrátit je do editoru ?",
                     .kept = "Neuložené dokumenty",
                     .next_time = "Příští start programu je nabídne zpět.",
                     .rest_name = "rescued.txt",
                     .rest_message = "Všechny dokumenty se nevešly do záložek. Zbylé jsou v souboru"}),
      documents_(documents) {}

RescueRecord DocumentsRescue::Unsaved() const {
  RescueRecord record{documents_.SelectedTab(), {}};
  for (int tab = 1; tab <= kTabCount; ++tab) {
    if (!documents_.IsUnsaved(tab)) continue;
    // The slot of the selected tab may still hold the path of the tab selected before.
    const std::string& path = tab == documents_.SelectedTab() ? documents_.CurrentPath() : documents_.Slot(tab).Path;
    record.texts.push_back({tab, path, documents_.TextOf(tab)});
  }
  return record;
}

std::vector<RescuedText> DocumentsRescue::BringBack(const std::vector<RescueRecord>& records) {
  std::array<bool, kTabCount + 1> taken{};
  for (int tab = 1; tab <= kTabCount; ++tab)
    taken[static_cast<std::size_t>(tab)] = !documents_.Face(tab).ToolTipText.empty();
  const auto place_of = [&](int wanted) {
    if (!taken[static_cast<std::size_t>(wanted)]) return wanted;
    for (int tab = 1; tab <= kTabCount; ++tab)
      if (!taken[static_cast<std::size_t>(tab)] && documents_.TextOf(tab).empty()) return tab;
    return 0;
  };
  std::vector<RescuedText> without_tab;
  int selected = documents_.SelectedTab();
  for (const RescueRecord& record : records) {
    for (const RescuedText& document : record.texts) {
      const int tab = place_of(document.place);
      if (tab == 0) {
        without_tab.push_back(document);
        continue;
      }
      taken[static_cast<std::size_t>(tab)] = true;
      documents_.Restore(tab, document.text, document.origin);
      if (document.place == record.shown) selected = tab;
    }
  }
  documents_.SwitchTo(selected);
  return without_tab;
}

std::string ReadableDocument(std::string_view path, std::string_view text) {
  return "Soubor:" + StoredPath(path) + "\r\n" + std::string(text) + "\r\n\r\n";
}

std::string DocumentsRescue::Readable(const std::vector<RescuedText>& texts) const {
  std::string readable;
  for (const RescuedText& document : texts) readable += ReadableDocument(document.origin, document.text);
  return readable;
}

}  // namespace pelmar
