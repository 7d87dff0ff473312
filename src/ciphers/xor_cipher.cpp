#include "ciphers/xor_cipher.h"

#include <algorithm>

#include "shell/editor.h"
#include "text/codepage.h"
#include "text/number_text.h"

namespace pelmar {
namespace {

constexpr char kQuestionCode = '\b';
// The largest number of characters between two calls of on_progress. A larger step saves time. A smaller step keeps the
// windows more responsive.
constexpr std::size_t kStep = 4096;

bool PersonStops(Platform& platform) {
  platform.Message(MessageType::kOk, "Porusena intengrita textu!", "Kódování");
  return platform.Confirmed("Ukončit proces? (doporučuji ne)", "Kódování");
}

}  // namespace

std::string KeyText(std::string_view typed) {
  std::string text(typed);
  for (std::string next; (next = NumberText(LeadingNumber(text))) != text;) text = std::move(next);
  return text;
}

void StreamCipher::Append(std::string_view text, std::string& output) {
  constexpr std::uint32_t kKeyCodes = 254;  // the key byte is never 0 and never 255
  for (const char ch : text) {
    const char code = CharOf(CodeOf(ch) ^ static_cast<int>(generator_.DrawUpTo(kKeyCodes)));
    if (code != '\0') output += code;
  }
}

void RewriteStream(TextBuffer& buffer, double key, std::string& output, Platform& platform,
                   const std::function<bool(std::size_t done)>& on_progress) {
  output.clear();
  StreamCipher cipher(key);
  const std::size_t length = buffer.Size();
  // The document may become shorter during the run. Then the run is complete at the new end.
  for (std::size_t done = 0; done < std::min(length, buffer.Size());) {
    std::string_view part = std::string_view(buffer.Text()).substr(done, std::min(kStep, length - done));
    if (part.front() == kQuestionCode) {
      // The progress bar shows the position of this character during the question.
      if (!on_progress(done + 1) || PersonStops(platform)) return;
      part = std::string_view(&kQuestionCode, 1);  // not from the document, which may have changed since
    } else {
      part = part.substr(0, part.find(kQuestionCode));
    }
    cipher.Append(part, output);
    done += part.size();
    if (!on_progress(done)) return;
  }
  buffer.SetText(output);
}

std::string PrimitiveRewrite(std::string_view text) {
  std::string result(text);
  for (char& ch : result) ch = CharOf(-CodeOf(ch));
  return result;
}

void AddPrimitiveCipherCommand(Editor& editor) {
  editor.commands.Add("mnuZaKodPrim", [&editor] {
    editor.text.SetText(PrimitiveRewrite(editor.text.Text()));
    editor.platform.Message(MessageType::kOk, "Ukončeno kódování.", "kód");
  });
}

}  // namespace pelmar
