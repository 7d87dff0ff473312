#include "text/text_layout.h"

#include <algorithm>

namespace pelmar {
namespace {

constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);

constexpr bool IsBlank(char ch) { return ch == ' ' || ch == '\t'; }

// Replaces the elements [from, to) by `fresh`.
void Splice(std::vector<std::size_t>& all, std::size_t from, std::size_t to, const std::vector<std::size_t>& fresh) {
  const auto at = [&](std::size_t index) { return all.begin() + static_cast<std::ptrdiff_t>(index); };
  const std::size_t common = std::min(to - from, fresh.size());
  const auto rest = fresh.begin() + static_cast<std::ptrdiff_t>(common);
  std::copy(fresh.begin(), rest, at(from));
  all.erase(at(from + common), at(to));
  all.insert(at(from + common), rest, fresh.end());
}

}  // namespace

void TextLayout::Lay(const LayoutRules& rules) {
  rules_ = rules;
  LayAll();
}

void TextLayout::LayAll() {
  rows_.assign(1, 0);
  std::size_t line = 0;
  for (std::size_t row = NextRow(0, line); row != kNoRow; row = NextRow(row, line)) rows_.push_back(row);
}

void TextLayout::SetWidth(std::int64_t width) {
  if (width == rules_.width) return;
  rules_.width = width;
  LayAll();
}

// The start of the next row, kNoRow after the last row. `line` is the line of the row at `start`, and becomes the line
// of the next row.
std::size_t TextLayout::NextRow(std::size_t start, std::size_t& line) const {
  const std::size_t end = buffer_->LineEnd(line);
  const std::size_t next = WrapAt(start, end);
  if (next < end) return next;
  if (++line == buffer_->LineCount()) return kNoRow;
  return buffer_->LineStart(line);
}

// The end of the row that starts at `start`, or `end` if the rest of the line fits. A blank at the edge still belongs
// to the row. A word wider than the row breaks at the edge, after at least one character.
std::size_t TextLayout::WrapAt(std::size_t start, std::size_t end) const {
  const std::string& text = buffer_->Text();
  std::int64_t x = 0;
  std::size_t at = start;
  for (; at < end; ++at) {
    const std::int64_t next = rules_.advances.After(x, text[at]);
    if (next > rules_.width) break;
    x = next;
  }
  if (at == end) return end;
  if (IsBlank(text[at])) return at + 1;
  for (std::size_t i = at; i > start; --i)
    if (IsBlank(text[i - 1])) return i;
  return std::max(at, start + 1);
}

RowsChange TextLayout::Update(const TextChange& change) {
  const std::size_t old_count = rows_.size();
  if (change.whole) {
    LayAll();
    return {0, old_count, rows_.size()};
  }
  // `touched` is the row of the byte before the change, since this byte may be a CR that the change joins to an LF or
  // separates from an LF. The row before `touched` is computed again too, since the first word of `touched` may now fit
  // there.
  const std::size_t touched = RowOf(change.pos > 0 ? change.pos - 1 : 0);
  const std::size_t first = touched > 0 ? touched - 1 : 0;
  const std::size_t old_end = change.pos + change.removed;
  const std::size_t new_end = change.pos + change.inserted;

  // Rows are computed until a new row begins where an old row after the change began. From there on, the old rows stay,
  // moved by the difference in length.
  auto same = static_cast<std::size_t>(std::lower_bound(rows_.begin(), rows_.end(), old_end) - rows_.begin());
  same = std::max(same, first + 1);
  std::vector<std::size_t> fresh;
  std::size_t line = buffer_->LineOf(rows_[first]);
  for (std::size_t row = NextRow(rows_[first], line);; row = NextRow(row, line)) {
    if (row == kNoRow) {
      same = old_count;
      break;
    }
    if (row >= new_end) {
      const std::size_t before = row - new_end + old_end;
      while (same < old_count && rows_[same] < before) ++same;
      if (same < old_count && rows_[same] == before) break;
    }
    fresh.push_back(row);
  }
  for (std::size_t i = same; i < old_count; ++i) rows_[i] += change.inserted - change.removed;
  Splice(rows_, first + 1, same, fresh);
  return {first, same - first, fresh.size() + 1};
}

std::size_t TextLayout::RowEnd(std::size_t row) const {
  if (row + 1 == rows_.size()) return buffer_->Size();
  return EndsLine(row) ? rows_[row + 1] - 2 : rows_[row + 1];
}

// The last row of the text ends a line. Any other row ends a line if a CR LF comes before the next row.
bool TextLayout::EndsLine(std::size_t row) const {
  if (row + 1 == rows_.size()) return true;
  return std::string_view(buffer_->Text()).substr(0, rows_[row + 1]).ends_with("\r\n");
}

std::size_t TextLayout::RowOf(std::size_t pos, bool at_row_end) const {
  const auto next = std::upper_bound(rows_.begin(), rows_.end(), pos);
  const auto row = static_cast<std::size_t>(next - rows_.begin()) - 1;
  return at_row_end && row > 0 && rows_[row] == pos && !EndsLine(row - 1) ? row - 1 : row;
}

std::int64_t TextLayout::RowLeft(std::size_t row) const {
  if (rules_.align == TextAlign::kLeft) return 0;
  const std::int64_t room = rules_.width - RowWidth(row);
  const std::int64_t left = rules_.align == TextAlign::kRight ? room : room / 2;
  return left / kUnitsPerPixel * kUnitsPerPixel;
}

std::int64_t TextLayout::XOf(std::size_t row, std::size_t pos) const {
  const std::string& text = buffer_->Text();
  pos = std::min(pos, RowEnd(row));
  std::int64_t x = 0;
  for (std::size_t at = rows_[row]; at < pos; ++at) x = rules_.advances.After(x, text[at]);
  return std::min(x, rules_.width);
}

std::size_t TextLayout::CharAt(std::size_t row, std::int64_t x) const {
  const std::string& text = buffer_->Text();
  const std::size_t end = RowEnd(row);
  std::size_t at = rows_[row];
  for (std::int64_t right = 0; at < end; ++at) {
    right = rules_.advances.After(right, text[at]);
    if (right > x) break;
  }
  return at;
}

std::size_t TextLayout::StopAt(std::size_t row, std::int64_t x) const {
  const std::size_t at = CharAt(row, x);
  if (at == RowEnd(row)) return at;
  const std::int64_t left = XOf(row, at);
  const std::int64_t right = XOf(row, at + 1);
  return 2 * x < left + right ? at : at + 1;
}

}  // namespace pelmar
