#include "files/encodings.h"

#include <array>
#include <cstdio>

#include "files/line_ends.h"
#include "files/save.h"
#include "platform/error_text.h"
#include "platform/paths.h"
#include "shell/file_number.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

bool IsOutsidePage(char32_t character) { return character != U'?' && CodeOfUnicode(character) == '?'; }

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

// Reads the file into `survey`, up to malformed UTF-8. If the file can't be read, shows a message and returns false.
bool ReadInto(Platform& platform, const std::string& path, Utf8Survey& survey) {
  int error = 0;
  {
    const BusyPointer busy(platform);
    error = platform.ReadByPieces(path, [&](std::string_view piece) { return survey.Take(piece); });
  }
  survey.Finish();
  if (error != 0) ReportError(platform, path, {.error = error});
  return error == 0;
}

// False if the target is the source file, or if the person refuses to overwrite the target. A message reports the first
// case.
bool MayWrite(Platform& platform, const std::string& path, const std::string& target) {
  return !IsOwnSource(platform, path, target) &&
         (!platform.CanRead(target) || Agreed(platform, OverwriteQuestion(target)));
}

void Write(Platform& platform, const std::string& path, const std::string& target, FileRewriter& rewriter) {
  WriteOutcome outcome;
  {
    const BusyPointer busy(platform);
    outcome = platform.RewriteFile(path, target, OldTail::kDrop, rewriter);
  }
  if (outcome.error != 0) ReportError(platform, target, outcome);
}

}  // namespace

std::string_view FormatHint(std::string_view bytes) {
  if (LooksLikeUtf8(bytes))
    return "Soubor je v UTF-8, čte se jako Windows-1250. Převede ho „Konverze dos - unix“ v nabídce Soubor.";
  bool has_cr_lf = false, has_lone_lf = false;
  for (std::size_t at = bytes.find('\n'); at != std::string_view::npos; at = bytes.find('\n', at + 1)) {
    const bool is_cr_lf = at > 0 && bytes[at - 1] == '\r';
    has_cr_lf |= is_cr_lf;
    has_lone_lf |= !is_cr_lf;
  }
  if (!has_lone_lf) return {};
  return has_cr_lf ? "Část řádků končí jen LF. Převede je „Konverze dos - unix“ v nabídce Soubor."
                   : "Řádky končí jen LF. Převede je „Konverze dos - unix“ v nabídce Soubor.";
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

bool Utf8Survey::Take(std::string_view piece) {
  for (const char byte : piece) {
    if (malformed) return false;
    const char32_t character = decoder_.Take(byte);
    ++read_;
    if (character == kUnfinishedUtf8) continue;
    if (character == kMalformedUtf8)
      malformed = place_;
    else
      Note(character);
  }
  return !malformed;
}

void Utf8Survey::Finish() {
  if (!malformed && decoder_.InCharacter()) malformed = place_;
}

void Utf8Survey::Note(char32_t character) {
  beyond_ascii |= character >= 0x80;
  const bool mark = character == kByteOrderMark && place_.byte == 1;
  if (!mark && IsOutsidePage(character) && outside++ == 0) {
    first_outside = place_;
    first_outside_character = character;
  }
  place_.byte = read_ + 1;
  const bool ends_line = character == '\r' || (character == '\n' && !after_cr_);
  if (ends_line) {
    ++place_.line;
    place_.column = 1;
  } else if (!mark && character != '\n') {
    ++place_.column;
  }
  after_cr_ = character == '\r';
}

std::string_view Utf8ToPage::Rewrite(std::string_view piece) {
  out_.clear();
  for (const char byte : piece) {
    const char32_t character = decoder_.Take(byte);
    if (character == kUnfinishedUtf8) continue;
    if (begun_ || character != kByteOrderMark) out_ += static_cast<char>(CodeOfUnicode(character));
    begun_ = true;
  }
  result_length_ += out_.size();
  return out_;
}

std::string_view PageToUtf8::Rewrite(std::string_view piece) {
  out_ = ToUtf8(piece);
  if (mark_) out_.insert(0, kByteOrderMarkBytes);
  mark_ = false;
  result_length_ += out_.size();
  return out_;
}

std::string WithExtension(std::string_view path, std::string_view extension) {
  const std::string_view name = NameOf(path);
  if (const std::size_t dot = name.rfind('.'); dot != 0 && dot != std::string_view::npos)
    path.remove_suffix(name.size() - dot);
  return std::string(path).append(".").append(extension);
}

void ConvertToPage(Platform& platform, const std::string& path) {
  const std::string target = WithExtension(path, "1250");
  Utf8Survey survey;
  if (!ReadInto(platform, path, survey)) return;
  if (survey.malformed)
    return Report(platform,
                  "Soubor " + path + " není v UTF-8:\r\n" + Described(*survey.malformed) + ".\r\nNic nebylo zapsáno.");
  if (survey.outside > 0 &&
      !Agreed(platform, "Soubor " + path + " obsahuje znaky, které ve Windows-1250 nejsou, celkem " +
                            std::to_string(survey.outside) + ".\r\nPrvní je " +
                            Described(survey.first_outside_character) + ": " + Described(survey.first_outside) +
                            ".\r\n\r\nZapsat místo nich \"?\" ?"))
    return;
  if (!MayWrite(platform, path, target)) return;
  Utf8ToPage rewriter;
  Write(platform, path, target, rewriter);
}

void ConvertToUtf8(Platform& platform, const std::string& path, bool byte_order_mark) {
  const std::string target = WithExtension(path, "utf8");
  Utf8Survey survey;
  if (!ReadInto(platform, path, survey)) return;
  if (!survey.malformed && survey.beyond_ascii &&
      !Agreed(platform, "Soubor " + path + " je v UTF-8 už teď.\r\nOpravdu převést ?"))
    return;
  if (!MayWrite(platform, path, target)) return;
  PageToUtf8 rewriter(byte_order_mark);
  Write(platform, path, target, rewriter);
}

}  // namespace pelmar
