#include "text/text_stops.h"

#include <cstdint>

#include "text/codepage.h"

namespace pelmar {
namespace {

enum class Kind : std::uint8_t { kWord, kBlank, kSign, kControl, kBreak };

bool BreakAt(std::string_view text, std::size_t pos) { return text.substr(pos).starts_with("\r\n"); }
bool BreakBefore(std::string_view text, std::size_t pos) { return text.substr(0, pos).ends_with("\r\n"); }

Kind KindAt(std::string_view text, std::size_t pos) {
  const char ch = text[pos];
  if (BreakAt(text, pos) || BreakBefore(text, pos + 1)) return Kind::kBreak;
  if (ch == ' ' || ch == '\t' || CodeOf(ch) == 0xA0) return Kind::kBlank;
  if (IsLetter(ch) || (ch >= '0' && ch <= '9') || ch == '_') return Kind::kWord;
  return CodeOf(ch) < 0x20 ? Kind::kControl : Kind::kSign;
}

std::size_t RunEnd(std::string_view text, std::size_t pos, Kind kind) {
  while (pos < text.size() && KindAt(text, pos) == kind) ++pos;
  return pos;
}

std::size_t RunBegin(std::string_view text, std::size_t pos, Kind kind) {
  while (pos > 0 && KindAt(text, pos - 1) == kind) --pos;
  return pos;
}

}  // namespace

std::size_t NextStop(std::string_view text, std::size_t pos) {
  if (pos >= text.size()) return text.size();
  return pos + (BreakAt(text, pos) ? 2 : 1);
}

std::size_t PreviousStop(std::string_view text, std::size_t pos) {
  if (pos == 0) return 0;
  return pos - (BreakBefore(text, pos) ? 2 : 1);
}

std::size_t NextWord(std::string_view text, std::size_t pos) {
  if (pos >= text.size()) return text.size();
  const Kind kind = KindAt(text, pos);
  pos = kind == Kind::kBreak ? NextStop(text, pos) : RunEnd(text, pos, kind);
  return RunEnd(text, pos, Kind::kBlank);
}

std::size_t PreviousWord(std::string_view text, std::size_t pos) {
  if (pos > 0 && KindAt(text, pos - 1) == Kind::kBreak) return PreviousStop(text, pos);
  pos = RunBegin(text, pos, Kind::kBlank);
  if (pos == 0 || BreakBefore(text, pos)) return pos;
  return RunBegin(text, pos, KindAt(text, pos - 1));
}

TextSpan WordAt(std::string_view text, std::size_t pos) {
  if (pos >= text.size() || KindAt(text, pos) == Kind::kBreak) {
    if (pos == 0 || KindAt(text, pos - 1) == Kind::kBreak) return {pos, pos};
    --pos;
  }
  const Kind kind = KindAt(text, pos);
  return {RunBegin(text, pos, kind), RunEnd(text, pos, kind)};
}

}  // namespace pelmar
