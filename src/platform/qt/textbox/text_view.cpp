#include "platform/qt/textbox/text_view.h"

#include <algorithm>

namespace pelmar {

void TextView::Show(const TextBuffer& buffer) {
  layout_ = TextLayout(buffer);
  stale_ = true;
}

void TextView::SetFont(const QFont& font) {
  if (glyphs_ && font == font_) return;
  font_ = font;
  glyphs_.reset();
  stale_ = true;
}

void TextView::SetAlign(TextAlign align) {
  rules_.align = align;
  layout_.SetAlign(align);
}

void TextView::SetViewportWidth(int width) {
  rules_.width = std::max(width - 2 * kMargin, 1) * kUnitsPerPixel;
  if (!stale_) layout_.SetWidth(rules_.width);
}

std::optional<RowsChange> TextView::Follow(const TextChange& change) {
  if (stale_) return std::nullopt;
  return layout_.Update(change);
}

void TextView::EnsureLayout() {
  if (!stale_) return;
  SetViewportWidth(viewport_width_());
  rules_.advances = Glyphs().Advances();
  layout_.Lay(rules_);
  stale_ = false;
}

const TextLayout& TextView::Layout() {
  EnsureLayout();
  return layout_;
}

const GlyphTable& TextView::Glyphs() {
  if (!glyphs_) glyphs_ = std::make_unique<GlyphTable>(font_);
  return *glyphs_;
}

int TextView::ContentHeight() { return RowTop(Layout().RowCount()) + kMargin; }

std::size_t TextView::RowAt(int y) {
  const int row = std::max(y - kMargin, 0) / Glyphs().RowHeight();
  return std::min(static_cast<std::size_t>(row), Layout().RowCount() - 1);
}

TextPlace TextView::PlaceAt(QPoint point) {
  return PlaceInRow(Layout(), RowAt(point.y()), (std::int64_t{point.x()} - kMargin) * kUnitsPerPixel);
}

int TextView::StopX(std::size_t row, std::size_t pos) {
  const TextLayout& layout = Layout();
  // Rounded down, so that the caret never begins inside the letter at `pos`.
  return kMargin + WholePixelsBelow(layout.RowLeft(row) + layout.XOf(row, pos));
}

QRect TextView::CharRect(std::size_t pos) {
  const TextLayout& layout = Layout();
  const std::size_t row = layout.RowOf(pos);
  const int left = StopX(row, pos);
  const int right = pos < layout.RowEnd(row) ? StopX(row, pos + 1) : left;
  return {left, RowTop(row), std::max(right - left, 1), Glyphs().RowHeight()};
}

}  // namespace pelmar
