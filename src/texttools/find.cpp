#include "texttools/find.h"

#include "text/codepage.h"
#include "text/search.h"

namespace pelmar {

void ReportNothingFound(Platform& platform) { platform.Message(MessageType::kOk, "Nenalezeno !", "Hledání"); }

std::string DefaultTerm(const TextBuffer& buffer) {
  return buffer.HasSelection() ? std::string(buffer.SelText()) : "Text";
}

Finder::Finder(TextBuffer& buffer, Platform& platform)
    : find(DefaultTerm(buffer)), buffer_(buffer), platform_(platform) {}

void Finder::Start() {
  history_on = case_on = find_on = false;
  next_on = true;
  std::string text = buffer_.Text();
  if (!case_sensitive) {
    text = ToUpper(text);
    find = ToUpper(find);
  }
  snapshot_.SetText(std::move(text));
  history.push_back(find);  // required: in upper case if the search ignores case
  count = position = std::nullopt;
  if (const auto hit = FindFrom(snapshot_.Text(), find, 0)) return Show(*hit);
  ReportNothing();
  GoIdle();
}

void Finder::Next() {
  // Hits may overlap: the search goes on one character after the start of the latest hit.
  if (const auto hit = FindFrom(snapshot_.Text(), find, position.value_or(0) + 1)) return Show(*hit);
  ReportNothing();
  GoIdle();  // required: the labels keep their values, unlike in Start
}

void Finder::New() {
  find = DefaultTerm(buffer_);
  // required: case_on isn't set, so after a hit the check box for the case stays disabled
  find_on = history_on = true;
  next_on = false;
}

void Finder::PickHistory(std::size_t row) {
  if (row < history.size()) find = history[row];
}

void Finder::Show(std::size_t hit) {
  count = count.value_or(0) + 1;
  position = hit;
  SelectHit(buffer_, hit, find.size());
}

void Finder::ReportNothing() {
  if (before_message) before_message();
  ReportNothingFound(platform_);
}

void Finder::GoIdle() {
  case_on = history_on = find_on = true;
  next_on = false;
  if (buffer_.HasSelection()) find = buffer_.SelText();
}

void FindPrimitively(TextBuffer& buffer, Platform& platform) {
  const auto answer = platform.InputBox("Vložte prosím text na hledání.", "Hledání", ToUtf8(DefaultTerm(buffer)));
  const std::string term = FromUtf8(answer.value_or(std::string()));
  std::size_t from = 0;
  std::size_t count = 0;
  while (true) {
    const auto hit = FindFrom(buffer.Text(), term, from);
    if (!hit) {
      ReportNothingFound(platform);
      break;
    }
    ++count;
    SelectHit(buffer, *hit, term.size());
    if (platform.Message(MessageType::kYesNoQuestion, GoOnQuestion(*hit), "hledání") != Answer::kYes) break;
    from = *hit + 1;
  }
  platform.Message(MessageType::kOk, "Nalezeno " + std::to_string(count) + " X", "Hledání");
}

}  // namespace pelmar
