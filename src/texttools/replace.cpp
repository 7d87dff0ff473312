#include "texttools/replace.h"

#include "shell/common.h"
#include "text/codepage.h"
#include "text/search.h"
#include "texttools/find.h"

namespace pelmar {
namespace {

constexpr std::string_view kMarker = "\xFF";

}  // namespace

Replacer::Replacer(TextBuffer& buffer, Platform& platform)
    : find(DefaultTerm(buffer)), change("Zaměň"_w), buffer_(buffer), platform_(platform) {}

void Replacer::Start() {
  lists_on = change_on = case_on = find_on = false;
  step_on = all_on = true;
  terms.push_back(find);  // required: before the change to upper case, unlike in Hledání
  changes.push_back(change);
  std::string text = buffer_.Text();
  if (!case_sensitive) {
    text = ToUpper(text);
    find = ToUpper(find);
  }
  snapshot_.SetText(std::move(text));
  found_pos_ = replaced_count_ = found_count_ = 0;
  if (Seek()) return;
  found_shown = replaced_shown = std::nullopt;
  ReportNothing();
}

void Replacer::Next() {
  ++found_pos_;
  SeekOn();
}

void Replacer::Replace() {
  ++found_pos_;
  replaced_shown = ++replaced_count_;
  buffer_.ReplaceSelection(change);  // required: even if something else is selected now
  snapshot_.ReplaceSelection(change);
  SeekOn();
}

void Replacer::SeekOn() {
  if (!Seek()) ReportNothing();
}

bool Replacer::Seek() {
  const auto hit = FindFrom(snapshot_.Text(), find, found_pos_);
  if (!hit) return false;
  found_shown = ++found_count_;
  found_pos_ = *hit;
  SelectHit(buffer_, *hit, find.size());
  SelectHit(snapshot_, *hit, find.size());
  return true;
}

void Replacer::ReportNothing() {
  if (before_message) before_message();
  ReportNothingFound(platform_);
  case_on = lists_on = find_on = change_on = true;
  step_on = false;  // required: all_on stays true
  if (buffer_.HasSelection()) find = buffer_.SelText();
}

void Replacer::ReplaceAll() {
  const BusyPointer busy(platform_);
  buffer_.SetText(ReplaceAllByMarker(buffer_.Text(), find, change));
  find_on = lists_on = change_on = true;
  step_on = all_on = false;  // required: case_on isn't set
  found_shown = replaced_shown = std::nullopt;
}

void Replacer::New() {
  find = DefaultTerm(buffer_);
  find_on = lists_on = change_on = true;
  step_on = false;
}

void Replacer::PickRow(std::size_t row) {
  if (row >= terms.size()) return;
  find = terms[row];
  change = changes[row];
}

std::string ReplaceAllByMarker(std::string_view text, std::string_view find, std::string_view change) {
  if (find.empty()) return std::string(text);
  return ReplaceAllText(ReplaceAllText(text, find, kMarker), kMarker, change);
}

}  // namespace pelmar
