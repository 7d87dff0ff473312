#include "text/text_layout.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "text/index.h"

namespace pelmar {
namespace {

constexpr std::size_t kMarkDistance = 2048;
constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);

constexpr bool IsBlank(char ch) { return ch == ' ' || ch == '\t'; }

std::int64_t Sum(const AdvanceTable& advances, std::string_view text) {
  std::int64_t sum = 0;
  for (const char ch : text) sum += advances.of[IndexOf(ch)];
  return sum;
}

// Replaces the elements [from, to) by `fresh`.
template <typename T>
void Splice(std::vector<T>& all, std::size_t from, std::size_t to, const std::vector<T>& fresh) {
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
  MeasureAll();
}

void TextLayout::SetWidth(std::int64_t width) {
  if (width == rules_.width) return;
  rules_.width = width;
  if (rules_.wrap) LayAll();
}

// The start of the next row, kNoRow after the last row. `line` is the line of the row at `start`, and becomes the line
// of the next row.
std::size_t TextLayout::NextRow(std::size_t start, std::size_t& line) const {
  if (rules_.wrap) {
    const std::size_t end = buffer_->LineEnd(line);
    const std::size_t next = WrapAt(start, end);
    if (next < end) return next;
  }
  if (++line == buffer_->LineCount()) return kNoRow;
  return buffer_->LineStart(line);
}

// The end of the row that starts at `start`, or `end` if the rest of the line fits. A blank at the edge still belongs
// to the row. A word wider than the row breaks anywhere.
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
  // If lines wrap, the row before the change is computed again too: a shorter word may fit into that row, and the
  // change may join or part a CR and an LF at its end.
  const std::size_t touched = RowOf(rules_.wrap && change.pos > 0 ? change.pos - 1 : change.pos);
  const std::size_t first = rules_.wrap && touched > 0 ? touched - 1 : touched;
  const std::size_t old_end = change.pos + change.removed;
  const std::size_t new_end = change.pos + change.inserted;

  // Rows are computed until a new row begins where an old row after the change began. All later rows stay.
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
  const std::size_t same_from = same < old_count ? rows_[same] : kNoRow;
  for (std::size_t i = same; i < old_count; ++i) rows_[i] += change.inserted - change.removed;
  Splice(rows_, first + 1, same, fresh);
  const RowsChange rows{first, same - first, fresh.size() + 1};
  if (!rules_.wrap) Remeasure(rows, change, same_from);
  return rows;
}

std::size_t TextLayout::RowEnd(std::size_t row) const {
  if (row + 1 == rows_.size()) return buffer_->Size();
  return EndsLine(row) ? rows_[row + 1] - 2 : rows_[row + 1];
}

// A row ends a line if a CR LF comes before the next row.
bool TextLayout::EndsLine(std::size_t row) const {
  if (row + 1 == rows_.size()) return true;
  const std::size_t next = rows_[row + 1];
  const std::string& text = buffer_->Text();
  return next >= 2 && text[next - 2] == '\r' && text[next - 1] == '\n';
}

std::size_t TextLayout::RowOf(std::size_t pos, bool at_row_end) const {
  const auto next = std::upper_bound(rows_.begin(), rows_.end(), pos);
  const auto row = static_cast<std::size_t>(next - rows_.begin()) - 1;
  return at_row_end && row > 0 && rows_[row] == pos && !EndsLine(row - 1) ? row - 1 : row;
}

std::int64_t TextLayout::ContentWidth() const { return rules_.wrap ? rules_.width : std::max(rules_.width, widest_); }

std::int64_t TextLayout::RowLeft(std::size_t row) const {
  if (rules_.align == TextAlign::kLeft) return 0;
  const std::int64_t room = std::max<std::int64_t>(ContentWidth() - RowWidth(row), 0);
  const std::int64_t left = rules_.align == TextAlign::kRight ? room : room / 2;
  return left / kUnitsPerPixel * kUnitsPerPixel;
}

std::int64_t TextLayout::Walk(Mark from, std::size_t to) const {
  const std::string_view text = buffer_->Text();
  while (from.pos < to) {
    const std::size_t tab = std::min(text.substr(0, to).find('\t', from.pos), to);
    from.x += Sum(rules_.advances, text.substr(from.pos, tab - from.pos));
    if (tab < to) from.x = rules_.advances.After(from.x, '\t');
    from.pos = tab + 1;
  }
  return from.x;
}

std::int64_t TextLayout::XOf(std::size_t row, std::size_t pos) const {
  Mark from{rows_[row], 0};
  pos = std::clamp(pos, rows_[row], RowEnd(row));
  const auto after =
      std::upper_bound(marks_.begin(), marks_.end(), pos, [](std::size_t p, const Mark& mark) { return p < mark.pos; });
  if (after != marks_.begin() && std::prev(after)->pos > from.pos) from = *std::prev(after);
  const std::int64_t x = Walk(from, pos);
  return rules_.wrap ? std::min(x, std::max(rules_.width, std::int64_t{0})) : x;
}

std::size_t TextLayout::CharAt(std::size_t row, std::int64_t x) const {
  Mark from{rows_[row], 0};
  const std::size_t end = RowEnd(row);
  const auto by_pos = [](const Mark& mark, std::size_t p) { return mark.pos <= p; };
  const auto first = std::lower_bound(marks_.begin(), marks_.end(), from.pos, by_pos);
  const auto last = std::lower_bound(first, marks_.end(), end, by_pos);
  const auto after = std::upper_bound(first, last, x, [](std::int64_t v, const Mark& mark) { return v < mark.x; });
  if (after != first) from = *std::prev(after);
  for (; from.pos < end; ++from.pos) {
    const std::int64_t next = rules_.advances.After(from.x, buffer_->Text()[from.pos]);
    if (next > x) break;
    from.x = next;
  }
  return from.pos;
}

std::size_t TextLayout::StopAt(std::size_t row, std::int64_t x) const {
  const std::size_t at = CharAt(row, x);
  if (at == RowEnd(row)) return at;
  const std::int64_t left = XOf(row, at);
  const std::int64_t right = XOf(row, at + 1);
  return 2 * x < left + right ? at : at + 1;
}

// The width of the whole row. Adds only the advances after the mark `from`. Appends new marks to `marks`.
std::int64_t TextLayout::MeasureRow(std::size_t row, Mark from, std::vector<Mark>& marks) const {
  const std::size_t end = RowEnd(row);
  while (end - from.pos > kMarkDistance) {
    from = {from.pos + kMarkDistance, Walk(from, from.pos + kMarkDistance)};
    marks.push_back(from);
  }
  return Walk(from, end);
}

void TextLayout::MeasureAll() {
  marks_.clear();
  widths_.clear();
  widest_ = 0;
  if (rules_.wrap) return;
  widths_.reserve(rows_.size());
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    widths_.push_back(MeasureRow(row, {rows_[row], 0}, marks_));
    widest_ = std::max(widest_, widths_.back());
  }
}

// Measures changed rows. Marks before the change stay. `same_from` is a position in the old text: the marks after
// `same_from` move with the text.
void TextLayout::Remeasure(const RowsChange& rows, const TextChange& change, std::size_t same_from) {
  const auto by_pos = [](const Mark& mark, std::size_t p) { return mark.pos <= p; };
  const auto kept_end = std::lower_bound(marks_.begin(), marks_.end(), change.pos, by_pos);
  const auto moved = same_from == kNoRow ? marks_.end() : std::lower_bound(kept_end, marks_.end(), same_from, by_pos);
  for (auto mark = moved; mark != marks_.end(); ++mark) mark->pos += change.inserted - change.removed;

  Mark from{rows_[rows.first], 0};
  if (kept_end != marks_.begin() && std::prev(kept_end)->pos > from.pos) from = *std::prev(kept_end);
  std::vector<Mark> marks;
  std::vector<std::int64_t> widths;
  for (std::size_t row = rows.first; row < rows.first + rows.inserted; ++row) {
    widths.push_back(MeasureRow(row, from, marks));
    if (row + 1 < rows_.size()) from = {rows_[row + 1], 0};
  }
  Splice(marks_, static_cast<std::size_t>(kept_end - marks_.begin()), static_cast<std::size_t>(moved - marks_.begin()),
         marks);

  const auto old = widths_.begin() + static_cast<std::ptrdiff_t>(rows.first);
  const std::int64_t old_widest = *std::max_element(old, old + static_cast<std::ptrdiff_t>(rows.removed));
  const std::int64_t new_widest = *std::max_element(widths.begin(), widths.end());
  Splice(widths_, rows.first, rows.first + rows.removed, widths);
  if (new_widest >= widest_) {
    widest_ = new_widest;
  } else if (old_widest == widest_) {
    widest_ = *std::max_element(widths_.begin(), widths_.end());
  }
}

}  // namespace pelmar
