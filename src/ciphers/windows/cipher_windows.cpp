#include "ciphers/windows/cht.h"
#include "ciphers/windows/confeld.h"
#include "ciphers/windows/rnd_sifra.h"
#include "ciphers/windows/shift.h"
#include "ciphers/windows/shift_kod.h"
#include "ciphers/windows/za_kod.h"
#include "shell/services/program_parts.h"

namespace pelmar {
namespace {

void RotateSelection(const ProgramParts& parts) {
  if (!parts.editor.text.HasSelection()) return void(parts.platform.Message(MessageType::kOk, "Vyber text!", "Posun"));
  parts.windows.GetFresh<Shift>().exec();
}

}  // namespace

void AddCipherWindows(const ProgramParts& parts) {
  const auto text = std::ref(parts.editor.text);
  const auto platform = std::ref(parts.platform);
  parts.Add<ZaKod>({"mnucode"}, std::ref(parts.editor), [&session = parts.session] { return session.Closed(); });
  parts.Add<ShiftKod>({"mnu_encrypt_shift"}, text, platform);
  parts.Add<Confeld>({"Mnu_Encrypt_Confeld"}, text, platform);
  parts.Add<RND_Sifra>({"mnu_rnd_encrypt"}, std::ref(parts.editor));
  parts.Add<CHT>({"Mnu_Hack_cry"}, text, platform);
  parts.Add<Shift>({}, text);
  parts.editor.commands.Add("MnuSelTextPosun", [parts] { RotateSelection(parts); });
}

}  // namespace pelmar
