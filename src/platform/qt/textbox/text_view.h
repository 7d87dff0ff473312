// A text laid out for a window: layout, glyphs and margins together, in pixels of the content (the upper left corner of
// the scrolled area is 0, 0). Lays out when it is asked, so a hidden or yet unsized box costs nothing.
#pragma once

#include <QFont>
#include <QRect>
#include <QSize>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "platform/qt/glyph_table.h"
#include "text/caret_mover.h"
#include "text/text_layout.h"

namespace pelmar {

class TextView {
 public:
  static constexpr int kMargin = 4;
  // How far letters may reach into the neighbouring rows: accents do, and at scales between whole numbers any letter.
  static constexpr int kOverhang = 2;

  // `window_width` is asked when the text is laid out afresh; SetWindowWidth tells of changes in between.
  TextView(const TextBuffer& buffer, std::function<int()> window_width)
      : window_width_(std::move(window_width)), layout_(buffer) {}

  void Show(const TextBuffer& buffer);
  void SetFont(const QFont& font);
  void SetWrap(bool wrap);
  void SetAlign(TextAlign align);
  void SetWindowWidth(int width);
  void Invalidate() { stale_ = true; }

  // Follows a change of the buffer; nothing where the layout waits to be made anyway.
  std::optional<RowsChange> Follow(const TextChange& change);

  const TextLayout& Layout();
  // Of the same life as the view, but laid out only as far as Layout was asked for.
  [[nodiscard]] const TextLayout& RawLayout() const { return layout_; }
  const GlyphTable& Glyphs();
  [[nodiscard]] bool Wraps() const { return rules_.wrap; }
  [[nodiscard]] TextAlign Align() const { return rules_.align; }

  QSize ContentSize();
  int RowTop(std::size_t row) { return kMargin + static_cast<int>(row) * Glyphs().RowHeight(); }
  // The row at a height, the first or last one outside of the text.
  std::size_t RowAt(int y);
  TextPlace PlaceAt(QPoint point);
  // The left edge of a caret stop.
  int StopX(std::size_t row, std::size_t pos);
  // The cell of the character at `pos`; a caret stop's thin rectangle at the end of a line.
  QRect CharRect(std::size_t pos);

 private:
  std::function<int()> window_width_;
  QFont font_;
  std::unique_ptr<GlyphTable> glyphs_;
  LayoutRules rules_;
  TextLayout layout_;
  bool stale_ = true;
};

}  // namespace pelmar
