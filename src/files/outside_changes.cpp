#include "files/outside_changes.h"

namespace pelmar {

std::string_view OutsideNotice(const Documents& documents, Platform& platform) {
  const KnownFile* known = documents.CurrentFile();
  if (known == nullptr || !known->stamp) return "";
  const auto now = platform.Stamp(known->path);
  if (!now) return "Soubor zmizel z disku";
  return *now == *known->stamp ? "" : "Soubor se změnil na disku";
}

bool CurrentWasUtf8(const Documents& documents) {
  const KnownFile* known = documents.CurrentFile();
  return known != nullptr && known->utf8;
}

}  // namespace pelmar
