#include "files/outside_changes.h"

namespace pelmar {

void OutsideChanges::Note(const std::string& path, const std::optional<FileStamp>& stamp) {
  auto& known = known_[static_cast<std::size_t>(documents_.SelectedTab() - 1)];
  known.reset();
  if (stamp) known = {path, *stamp};
}

OutsideChange OutsideChanges::OfCurrent() const {
  const auto& known = known_[static_cast<std::size_t>(documents_.SelectedTab() - 1)];
  // A document that was emptied or came back after a crash has no file, or another one.
  if (!known || known->path != documents_.CurrentPath()) return OutsideChange::kNone;
  const auto now = platform_.Stamp(known->path);
  if (!now) return OutsideChange::kGone;
  return *now == known->stamp ? OutsideChange::kNone : OutsideChange::kWritten;
}

std::string_view OutsideNotice(OutsideChange change) {
  switch (change) {
    case OutsideChange::kNone:
      return "";
    case OutsideChange::kWritten:
      return "Soubor se změnil na disku";
    case OutsideChange::kGone:
      return "Soubor zmizel z disku";
  }
  return "";
}

}  // namespace pelmar
