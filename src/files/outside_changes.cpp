#include "files/outside_changes.h"

#include "text/index.h"

namespace pelmar {

void OutsideChanges::Note(const std::string& path, const std::optional<FileStamp>& stamp, bool utf8) {
  known_[IndexFromOne(documents_.SelectedTab())] = {path, stamp, utf8};
}

OutsideChange OutsideChanges::OfCurrent() const {
  const Known* known = OfCurrentPath();
  if (known == nullptr || !known->stamp) return OutsideChange::kNone;
  const auto now = platform_.Stamp(known->path);
  if (!now) return OutsideChange::kGone;
  return *now == *known->stamp ? OutsideChange::kNone : OutsideChange::kWritten;
}

bool OutsideChanges::CurrentWasUtf8() const {
  const Known* known = OfCurrentPath();
  return known != nullptr && known->utf8;
}

// Null if the current document no longer has the remembered path, as after clearing the tab.
const OutsideChanges::Known* OutsideChanges::OfCurrentPath() const {
  const Known& known = known_[IndexFromOne(documents_.SelectedTab())];
  return known.path == documents_.CurrentPath() ? &known : nullptr;
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
