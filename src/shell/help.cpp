#include "shell/help.h"

#include "platform/error_text.h"
#include "platform/paths.h"
#include "text/codepage.h"
#include "text/search.h"

namespace pelmar {

std::optional<std::string> LoadHelp(Platform& platform) {
  constexpr std::string_view kFileName = "pelmar.txt";
  FileBytes file = platform.ReadFile(JoinPath(platform.InstallFolder(), kFileName), std::nullopt);
  if (file.error != 0) file = platform.ReadFile(JoinPath(platform.ShareFolder(), kFileName), std::nullopt);
  if (file.error == 0) return std::move(file.bytes);
  platform.Message(MessageType::kOk, "Chyba helpového systému - pelmar.txt: " + ErrorText(file.error),
                   "Help k Pelmar VEX");
  return std::nullopt;
}

void SearchHelp(TextBuffer& buffer, std::string_view term, Platform& platform) {
  const std::string folded_text = ToUpper(buffer.Text());
  const std::string folded_term = ToUpper(term);
  std::size_t from = 0;
  while (const auto hit = FindFrom(folded_text, folded_term, from)) {
    SelectHit(buffer, *hit, term.size());
    if (!platform.Confirmed(GoOnQuestion(*hit), "hledání")) return;
    from = *hit + 1;
  }
}

}  // namespace pelmar
