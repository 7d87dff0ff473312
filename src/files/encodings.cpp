#include "files/encodings.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>

#include "files/line_ends.h"
#include "files/save.h"
#include "platform/error_text.h"
#include "platform/paths.h"
#include "shell/file_number.h"
#include "text/codepage.h"
#include "text/utf8.h"

namespace pelmar {
namespace {

// A position in a file. All three numbers count from 1. CR LF, CR and LF each end a line. Columns count characters,
// without a byte order mark at the start of the file.
struct FilePlace {
  std::uint64_t byte = 1, line = 1, column = 1;
};

// What a conversion from UTF-8 to Windows-1250 would lose.
struct Utf8Survey {
  std::optional<FilePlace> malformed;  // the first malformed UTF-8; later characters are not counted
  std::uint64_t outside = 0;           // number of characters missing in Windows-1250
  FilePlace first_outside;
  char32_t first_outside_character = 0;
};

void Report(Platform& platform, const std::string& text) { platform.Message(MessageType::kOk, text, kConversionTitle); }

bool Agreed(Platform& platform, const std::string& text) { return platform.Confirmed(text, kConversionTitle); }

std::string Described(const FilePlace& place) {
  return "řádek " + std::to_string(place.line) + ", sloupec " + std::to_string(place.column) + ", bajt " +
         std::to_string(place.byte);
}

// A text such as "→ (U+2192)". A control character is shown by its number alone.
std::string Described(char32_t character) {
  std::array<char, 16> number{};
  std::snprintf(number.data(), number.size(), "U+%04X", static_cast<unsigned>(character));
  if (character < 0xA0) return number.data();
  std::string described;
  AppendUtf8(described, character);
  return described + " (" + number.data() + ")";
}

void ReportError(Platform& platform, const std::string& path, const WriteOutcome& outcome) {
  Report(platform, "Soubor se nepodařilo převést!\r\nSoubor: " + path + "\r\nKód chyby " +
                       std::to_string(outcome.error) + ": " + ErrorText(outcome.error) + KeptNotice(outcome));
}

// `start` is the size of the byte order mark, 0 if there is none.
Utf8Survey Survey(std::string_view bytes, std::size_t start) {
  Utf8Survey survey;
  FilePlace place{.byte = start + 1};
  bool after_cr = false;
  for (std::size_t at = start; at < bytes.size();) {
    const char32_t character = DecodeUtf8(bytes, at);
    if (character == kMalformedUtf8) {
      survey.malformed = place;
      break;
    }
    if (FindCode(character) < 0 && survey.outside++ == 0) {
      survey.first_outside = place;
      survey.first_outside_character = character;
    }
    place.byte = at + 1;
    const bool ends_line = character == '\r' || (character == '\n' && !after_cr);
    if (ends_line) {
      ++place.line;
      place.column = 1;
    } else if (character != '\n') {
      ++place.column;
    }
    after_cr = character == '\r';
  }
  return survey;
}

// False if the target is the source file, or if the person refuses to overwrite the target. A message reports the first
// case.
bool MayWrite(Platform& platform, const std::string& path, const std::string& target) {
  return !IsOwnSource(platform, path, target) &&
         (!platform.CanRead(target) || Agreed(platform, OverwriteQuestion(target)));
}

void Write(Platform& platform, const std::string& target, std::string_view bytes) {
  const WriteOutcome outcome = platform.WriteDocument(target, bytes);
  if (outcome.error != 0) ReportError(platform, target, outcome);
}

// Whether an LF has no CR before it.
bool HasLoneLf(std::string_view bytes) {
  for (std::size_t at = bytes.find('\n'); at != std::string_view::npos; at = bytes.find('\n', at + 1))
    if (at == 0 || bytes[at - 1] != '\r') return true;
  return false;
}

}  // namespace

std::string_view FormatHint(std::string_view bytes) {
  if (LooksLikeUtf8(bytes))
    return "Soubor je v UTF-8, čte se jako Windows-1250. Převede ho „Konverze dos - unix“ v nabídce Soubor.";
  // The conversion of line ends would damage UTF-16 and other files with NUL.
  if (bytes.find('\0') != std::string_view::npos || !HasLoneLf(bytes)) return {};
  // The conversion to DOS would keep each CR and lose a last line without an end.
  if (bytes.ends_with('\n') && bytes.find('\r') == std::string_view::npos)
    return "Řádky končí jen LF. „Konverze dos - unix“: UNIX --> DOS.";
  return "Některé řádky končí jen LF. „Konverze dos - unix“: DOS --> UNIX, výsledek pak UNIX --> DOS.";
}

std::string_view MixHint() {
  return "Text míchá UTF-8 a Windows-1250. Vraťte změny zpět a soubor napřed převeďte: „Konverze dos - unix“ "
         "v nabídce Soubor.";
}

std::string MixQuestion(const std::string& path) {
  return "Soubor " + path +
         " je v UTF-8, ale v textu jsou už i písmena ve Windows-1250.\r\n"
         "Uložený soubor by nešel celý přečíst ani převést.\r\n\r\n"
         "Napřed ho převeďte: nabídka Soubor, Konverze dos - unix, tlačítko UTF-8 --> 1250. "
         "Pište pak do výsledku.\r\n\r\n"
         "Přesto uložit ?";
}

std::string WithExtension(std::string_view path, std::string_view extension) {
  const std::string_view name = NameOf(path);
  if (const std::size_t dot = name.rfind('.'); dot != 0 && dot != std::string_view::npos)
    path.remove_suffix(name.size() - dot);
  return std::string(path).append(".").append(extension);
}

void ConvertToPage(Platform& platform, const std::string& path) {
  const BusyPointer busy(platform);
  const std::string target = WithExtension(path, "1250");
  const FileBytes file = platform.ReadFile(path, std::nullopt);
  if (file.error != 0) return ReportError(platform, path, {.error = file.error});
  const std::size_t start = file.bytes.starts_with(kByteOrderMarkBytes) ? kByteOrderMarkBytes.size() : 0;
  const Utf8Survey survey = Survey(file.bytes, start);
  if (survey.malformed)
    return Report(platform,
                  "Soubor " + path + " není v UTF-8:\r\n" + Described(*survey.malformed) + ".\r\nNic nebylo zapsáno.");
  if (survey.outside > 0 &&
      !Agreed(platform, "Soubor " + path + " obsahuje znaky, které ve Windows-1250 nejsou, celkem " +
                            std::to_string(survey.outside) + ".\r\nPrvní je " +
                            Described(survey.first_outside_character) + ": " + Described(survey.first_outside) +
                            ".\r\n\r\nZapsat místo nich \"?\" ?"))
    return;
  if (MayWrite(platform, path, target)) Write(platform, target, FromUtf8(std::string_view(file.bytes).substr(start)));
}

void ConvertToUtf8(Platform& platform, const std::string& path, bool byte_order_mark) {
  const BusyPointer busy(platform);
  const std::string target = WithExtension(path, "utf8");
  const FileBytes file = platform.ReadFile(path, std::nullopt);
  if (file.error != 0) return ReportError(platform, path, {.error = file.error});
  if (LooksLikeUtf8(file.bytes) && !Agreed(platform, "Soubor " + path + " je v UTF-8 už teď.\r\nOpravdu převést ?"))
    return;
  if (!MayWrite(platform, path, target)) return;
  std::string utf8 = ToUtf8(file.bytes);
  if (byte_order_mark) utf8.insert(0, kByteOrderMarkBytes);
  Write(platform, target, utf8);
}

}  // namespace pelmar
