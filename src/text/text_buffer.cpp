#include "text/text_buffer.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace pelmar {
namespace {

// The limit in bytes for all steps of undo and redo. When a step is added, the oldest steps are dropped until the rest
// fits or only the new step is left.
constexpr std::size_t kHistoryLimit = std::size_t{64} << 20;

}  // namespace

TextBuffer::TextBuffer() : line_starts_{0} {}

void TextBuffer::SetText(std::string text) {
  undo_.clear();
  redo_.clear();
  history_bytes_ = 0;
  run_ = Run::kNone;
  if (text == text_) {
    Select(0, 0);
    return;
  }
  const TextChange change{0, text_.size(), text.size(), true};
  text_ = std::move(text);
  ++revision_;
  anchor_ = caret_ = 0;
  IndexLines();
  changed_.Notify(change);
}

void TextBuffer::SetSelStart(std::size_t start) { Select(start, start); }

void TextBuffer::SetSelLength(std::size_t length) {
  const std::size_t start = SelStart();
  Select(start, start + std::min(length, text_.size() - start));
}

void TextBuffer::Select(std::size_t anchor, std::size_t caret) {
  anchor = std::min(anchor, text_.size());
  caret = std::min(caret, text_.size());
  if (anchor == anchor_ && caret == caret_) return;
  anchor_ = anchor;
  caret_ = caret;
  run_ = Run::kNone;
  moved_.Notify();
}

void TextBuffer::ReplaceSelection(std::string_view text) { Edit(SelStart(), SelLength(), text, Run::kNone); }

void TextBuffer::Replace(std::size_t pos, std::size_t length, std::string_view text) {
  pos = std::min(pos, text_.size());
  Edit(pos, std::min(length, text_.size() - pos), text, Run::kNone);
}

void TextBuffer::Type(std::string_view text) { Edit(SelStart(), SelLength(), text, Run::kTyping); }

void TextBuffer::EraseBefore(std::size_t count) {
  if (HasSelection()) return Edit(SelStart(), SelLength(), {}, Run::kErasing);
  count = std::min(count, caret_);
  Edit(caret_ - count, count, {}, Run::kErasing);
}

void TextBuffer::EraseAfter(std::size_t count) {
  if (HasSelection()) return Edit(SelStart(), SelLength(), {}, Run::kErasing);
  Edit(caret_, std::min(count, text_.size() - caret_), {}, Run::kErasing);
}

void TextBuffer::Edit(std::size_t pos, std::size_t length, std::string_view text, Run run) {
  const std::string_view old = std::string_view(text_).substr(pos, length);
  if (old == text) {
    Select(pos + length, pos + length);
    return;
  }
  const std::string copy(text);  // the caller's text may be a view of this buffer
  Remember(pos, length, copy, run);
  Apply(pos, length, copy);
  run_ = copy.ends_with('\n') ? Run::kNone : run;
  changed_.Notify({pos, length, copy.size(), false});
}

void TextBuffer::Remember(std::size_t pos, std::size_t length, std::string_view text, Run run) {
  for (const Step& step : redo_) history_bytes_ -= step.removed.size() + step.inserted.size();
  redo_.clear();
  history_bytes_ += length + text.size();
  const std::string_view removed = std::string_view(text_).substr(pos, length);
  if (run != Run::kNone && run == run_ && !undo_.empty()) {
    Step& last = undo_.back();
    if (run == Run::kTyping && length == 0 && pos == last.pos + last.inserted.size()) {
      last.inserted += text;
      return;
    }
    if (run == Run::kErasing && last.inserted.empty() && pos + length == last.pos) {
      last.removed.insert(0, removed);
      last.pos = pos;
      return;
    }
    if (run == Run::kErasing && last.inserted.empty() && pos == last.pos) {
      last.removed += removed;
      return;
    }
  }
  undo_.push_back({pos, std::string(removed), std::string(text), anchor_, caret_});
  TrimHistory();
}

void TextBuffer::TrimHistory() {
  auto keep = undo_.begin();
  for (; history_bytes_ > kHistoryLimit && std::distance(keep, undo_.end()) > 1; ++keep)
    history_bytes_ -= keep->removed.size() + keep->inserted.size();
  undo_.erase(undo_.begin(), keep);
}

void TextBuffer::Apply(std::size_t pos, std::size_t length, std::string_view text) {
  text_.replace(pos, length, text);
  ++revision_;
  IndexLines();
  anchor_ = caret_ = pos + text.size();
}

bool TextBuffer::Undo() { return MoveStep(undo_, redo_); }
bool TextBuffer::Redo() { return MoveStep(redo_, undo_); }

bool TextBuffer::MoveStep(std::vector<Step>& from, std::vector<Step>& to) {
  if (from.empty()) return false;
  const bool forward = &from == &redo_;
  Step step = std::move(from.back());
  from.pop_back();
  const std::size_t length = forward ? step.removed.size() : step.inserted.size();
  const std::string& text = forward ? step.inserted : step.removed;
  Apply(step.pos, length, text);
  if (!forward) {
    anchor_ = std::min(step.anchor_before, text_.size());
    caret_ = std::min(step.caret_before, text_.size());
  }
  run_ = Run::kNone;
  const TextChange change{step.pos, length, text.size(), false};
  to.push_back(std::move(step));
  changed_.Notify(change);
  return true;
}

std::size_t TextBuffer::LineOf(std::size_t pos) const {
  const auto next = std::upper_bound(line_starts_.begin(), line_starts_.end(), pos);
  return static_cast<std::size_t>(std::distance(line_starts_.begin(), next)) - 1;
}

std::size_t TextBuffer::LineEnd(std::size_t line) const {
  return line + 1 < line_starts_.size() ? line_starts_[line + 1] - 2 : text_.size();
}

std::string_view TextBuffer::Line(std::size_t line) const {
  return std::string_view(text_).substr(LineStart(line), LineEnd(line) - LineStart(line));
}

void TextBuffer::IndexLines() {
  line_starts_.assign(1, 0);
  for (std::size_t at = text_.find("\r\n"); at != std::string::npos; at = text_.find("\r\n", at + 2))
    line_starts_.push_back(at + 2);
}

}  // namespace pelmar
