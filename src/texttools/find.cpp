#include "texttools/find.h"

#include "text/codepage.h"
#include "text/search.h"

namespace pelmar {
namespace {

// Selects a hit (from 1) in the document, clipped to its end.
void SelectHit(TextBuffer& document, std::size_t hit, std::size_t length) {
  document.SetSelStart(hit - 1);
  document.SetSelLength(length);
}

}  // namespace

std::string DefaultTerm(const TextBuffer& document) {
  return document.HasSelection() ? std::string(document.SelText()) : "Text";
}

Finder::Finder(TextBuffer& document, Platform& platform) : document_(document), platform_(platform) {}

void Finder::Load() {
  TakeDefaultTerm();
  case_on = find_on = true;
  next_on = false;
}

void Finder::TakeDefaultTerm() { find = DefaultTerm(document_); }

void Finder::Start() {
  history_on = case_on = find_on = false;
  next_on = true;
  std::string text = document_.Text();
  if (!case_sensitive) {
    text = ToUpper(text);
    find = ToUpper(find);
  }
  snapshot_.SetText(std::move(text));
  history.push_back(find);  // required: behind the folding, so that an upper-cased term stands so in the list
  count = position = 0;
  const std::size_t hit = FindFrom(snapshot_.Text(), find, 1);
  if (hit != 0) return Show(hit);
  TellNothing();
  GoIdle();
  count = position = std::nullopt;
}

void Finder::Next() {
  const std::size_t at = static_cast<std::size_t>(position.value_or(0)) + 1;
  // Hits may overlap: the next one may begin a character behind the start of the last.
  const std::size_t hit = FindFrom(snapshot_.Text(), find, at + 1);
  if (hit != 0) return Show(hit);
  TellNothing();
  GoIdle();  // required: the labels keep their values here, unlike after a start
}

void Finder::New() {
  TakeDefaultTerm();
  find_on = history_on = true;
  next_on = false;  // required: Rozlisovat stays off when a search had switched it off
}

void Finder::PickHistory(std::size_t row) {
  if (row < history.size()) find = history[row];
}

void Finder::Show(std::size_t hit) {
  count = count.value_or(0) + 1;
  position = static_cast<std::int64_t>(hit) - 1;
  SelectHit(document_, hit, find.size());
}

void Finder::TellNothing() {
  if (before_message) before_message();
  platform_.Message(MessageType::kOk, "Nenalezeno !", "Hledání");
}

void Finder::GoIdle() {
  case_on = history_on = find_on = true;
  next_on = false;
  if (document_.HasSelection()) find = document_.SelText();
}

void FindPrimitively(TextBuffer& document, Platform& platform) {
  const auto answer = platform.InputBox("Vložte prosím text na hledání.", "Hledání", ToUtf8(DefaultTerm(document)));
  const std::string term = FromUtf8(answer.value_or(std::string()));
  std::size_t position = 0;
  std::size_t count = 0;
  while (true) {
    position = FindFrom(document.Text(), term, position + 1);
    if (position == 0) {
      platform.Message(MessageType::kOk, "Nenalezeno !", "Hledání");
      break;
    }
    ++count;
    SelectHit(document, position, term.size());
    const std::string question = "Nalezeno na " + std::to_string(position) + " místě, pokračovat ?";
    if (platform.Message(MessageType::kYesNoQuestion, question, "hledání") != Answer::kYes) break;
  }
  platform.Message(MessageType::kOk, "Nalezeno " + std::to_string(count) + " X", "Hledání");
}

}  // namespace pelmar
