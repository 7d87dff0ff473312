#include "ciphers/commands.h"

#include "ciphers/check_sums.h"
#include "ciphers/xor_cipher.h"
#include "shell/editor.h"

namespace pelmar {

void AddCipherCommands(Editor& editor) {
  editor.commands.Add("mnuZaKodPrim", [&editor] {
    editor.text.SetText(PrimitiveRewrite(editor.text.Text()));
    editor.platform.Message(MessageType::kOk, "Ukončeno kódování.", "kód");
  });
  editor.commands.Add("mnu_crc", [&editor] {
    editor.platform.Message(MessageType::kOkInfo, SumsMessage(SumsOf(editor.text.Text())), "CRC");
  });
}

}  // namespace pelmar
