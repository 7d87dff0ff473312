#include "shell/rescue_file.h"

#include <array>
#include <cstdint>

#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::string_view kSignature = "PELMAR-RESCUE-1\n";

// FNV-1a: guards against torn and foreign files, not against malice.
std::uint64_t Checksum(std::string_view bytes) {
  std::uint64_t sum = 14695981039346656037u;
  for (char ch : bytes) sum = (sum ^ static_cast<std::uint64_t>(CodeOf(ch))) * 1099511628211u;
  return sum;
}

void PutNumber(std::string& out, std::uint64_t value) {
  for (int shift = 0; shift < 64; shift += 8) out += CharOf(static_cast<int>(value >> shift & 0xFF));
}

void PutString(std::string& out, std::string_view value) {
  PutNumber(out, value.size());
  out += value;
}

class Reader {
 public:
  explicit Reader(std::string_view bytes) : rest_(bytes) {}

  [[nodiscard]] bool Failed() const { return failed_; }
  [[nodiscard]] bool AtEnd() const { return rest_.empty(); }

  std::uint64_t Number() {
    const std::string_view field = Take(8);
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < field.size(); ++i) value |= static_cast<std::uint64_t>(CodeOf(field[i])) << 8 * i;
    return value;
  }
  int Tab() {
    const std::uint64_t tab = Number();
    failed_ = failed_ || tab < 1 || tab > kTabCount;
    return failed_ ? 1 : static_cast<int>(tab);
  }
  std::string String() { return std::string(Take(Number())); }

 private:
  std::string_view Take(std::uint64_t size) {
    failed_ = failed_ || size > rest_.size();
    if (failed_) return {};
    const std::string_view field = rest_.substr(0, static_cast<std::size_t>(size));
    rest_.remove_prefix(static_cast<std::size_t>(size));
    return field;
  }

  std::string_view rest_;
  bool failed_ = false;
};

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
  std::string body;
  PutNumber(body, static_cast<std::uint64_t>(record.selected_tab));
  for (const RescuedDocument& document : record.documents) {
    PutNumber(body, static_cast<std::uint64_t>(document.tab));
    PutString(body, document.path);
    PutString(body, document.text);
  }
  std::string bytes(kSignature);
  PutNumber(bytes, Checksum(body));
  return bytes + body;
}

std::optional<RescueRecord> ReadRescue(std::string_view bytes) {
  if (!bytes.starts_with(kSignature)) return std::nullopt;
  bytes.remove_prefix(kSignature.size());
  Reader head(bytes.substr(0, 8));
  const std::uint64_t sum = head.Number();
  if (head.Failed() || Checksum(bytes.substr(8)) != sum) return std::nullopt;
  Reader reader(bytes.substr(8));
  RescueRecord record;
  record.selected_tab = reader.Tab();
  while (!reader.AtEnd() && !reader.Failed()) {
    RescuedDocument document;
    document.tab = reader.Tab();
    document.path = reader.String();
    document.text = reader.String();
    record.documents.push_back(std::move(document));
  }
  if (reader.Failed()) return std::nullopt;
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
