#include "shell/rescue_file.h"

#include <array>
#include <cstdint>

#include "shell/record_bytes.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::string_view kSignature = "PELMAR-RESCUE-1\n";

constexpr std::size_t kNumber = 8;

void PutNumber(RecordWriter& writer, std::size_t value) { writer.Number(value, kNumber); }
void PutString(RecordWriter& writer, std::string_view value) {
  PutNumber(writer, value.size());
  writer.Bytes(value);
}
std::string TakeString(RecordReader& reader) { return std::string(reader.Bytes(reader.Number(kNumber))); }

// 0 where the number is no tab's.
int TakeTab(RecordReader& reader) {
  const std::uint64_t tab = reader.Number(kNumber);
  return tab <= kTabCount ? static_cast<int>(tab) : 0;
}

}  // namespace

RescueRecord UnsavedDocuments(const Documents& documents) {
  RescueRecord record{documents.SelectedTab(), {}};
  for (int tab = 1; tab <= kTabCount; ++tab) {
    if (!documents.IsUnsaved(tab)) continue;
    // The slot of the current tab always holds its live text; its path may still be that of the tab left before.
    const std::string& path = tab == documents.SelectedTab() ? documents.CurrentPath() : documents.Slot(tab).Path;
    record.documents.push_back({tab, path, documents.Slot(tab).Text});
  }
  return record;
}

std::string RescueBytes(const RescueRecord& record) {
  RecordWriter writer;
  PutNumber(writer, static_cast<std::size_t>(record.selected_tab));
  for (const RescuedDocument& document : record.documents) {
    PutNumber(writer, static_cast<std::size_t>(document.tab));
    PutString(writer, document.path);
    PutString(writer, document.text);
  }
  return Sealed(kSignature, std::move(writer).Take());
}

std::optional<RescueRecord> ReadRescue(std::string_view bytes) {
  const std::optional<std::string_view> body = SealedBody(kSignature, bytes);
  if (!body) return std::nullopt;
  RecordReader reader(*body);
  RescueRecord record;
  record.selected_tab = TakeTab(reader);
  if (record.selected_tab == 0) return std::nullopt;
  while (!reader.AtEnd()) {
    RescuedDocument document;
    document.tab = TakeTab(reader);
    document.path = TakeString(reader);
    document.text = TakeString(reader);
    if (reader.Failed() || document.tab == 0) return std::nullopt;
    record.documents.push_back(std::move(document));
  }
  return record;
}

std::vector<RescuedDocument> BringBack(Documents& documents, const std::vector<RescueRecord>& records) {
  std::array<bool, kTabCount + 1> taken{};
  for (int tab = 1; tab <= kTabCount; ++tab)
    taken[static_cast<std::size_t>(tab)] = !documents.Face(tab).ToolTipText.empty();
  const auto place_of = [&](int wanted) {
    if (!taken[static_cast<std::size_t>(wanted)]) return wanted;
    for (int tab = 1; tab <= kTabCount; ++tab)
      if (!taken[static_cast<std::size_t>(tab)] && documents.Slot(tab).Text.empty()) return tab;
    return 0;
  };
  std::vector<RescuedDocument> homeless;
  int selected = documents.SelectedTab();
  for (const RescueRecord& record : records) {
    for (const RescuedDocument& document : record.documents) {
      const int tab = place_of(document.tab);
      if (tab == 0) {
        homeless.push_back(document);
        continue;
      }
      taken[static_cast<std::size_t>(tab)] = true;
      documents.Restore(tab, document.text, document.path);
      if (document.tab == record.selected_tab) selected = tab;
    }
  }
  documents.SwitchTo(selected);
  return homeless;
}

std::string ReadableRescue(const std::vector<RescuedDocument>& documents) {
  std::string text;
  for (const RescuedDocument& document : documents)
    text += "Soubor:" + FromUtf8(document.path) + "\r\n" + document.text + "\r\n\r\n";
  return text;
}

}  // namespace pelmar
