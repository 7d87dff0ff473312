#include "files/outside_changes.h"

namespace pelmar {

OutsideChange OutsideChangeOf(const Documents& documents, Platform& platform) {
  const KnownFile* known = documents.CurrentFile();
  if (known == nullptr || !known->stamp) return OutsideChange::kNone;
  const auto now = platform.Stamp(known->path);
  if (!now) return OutsideChange::kGone;
  return *now == *known->stamp ? OutsideChange::kNone : OutsideChange::kWritten;
}

bool CurrentWasUtf8(const Documents& documents) {
  const KnownFile* known = documents.CurrentFile();
  return known != nullptr && known->utf8;
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
