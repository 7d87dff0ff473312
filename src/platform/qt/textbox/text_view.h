// The layout of a text in a text box, with glyphs and margins. Coordinates are pixels from the upper left corner of the
// scrolled content. The layout is computed only on request, so a hidden box needs no layout.
#pragma once

#include <QFont>
#include <QRect>
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
  // A letter may extend this many pixels into a neighbouring row, by its accent or because of a fractional scale.
  static constexpr int kOverhang = 2;

  // `viewport_width` is called for each full layout. Call SetViewportWidth if the width changes in between.
  TextView(const TextBuffer& buffer, std::function<int()> viewport_width)
      : viewport_width_(std::move(viewport_width)), layout_(buffer) {}

  void Show(const TextBuffer& buffer);
  void SetFont(const QFont& font);
  void SetAlign(TextAlign align);
  void SetViewportWidth(int width);
  void Invalidate() { stale_ = true; }

  // Updates the layout after a change of the buffer. Returns nothing if a full layout is due anyway.
  std::optional<RowsChange> Follow(const TextChange& change);

  // Computes the layout if a full layout is due.
  void EnsureLayout();
  const TextLayout& Layout();
  // The layout as it is, outdated if a full layout is due. The reference is valid as long as the view.
  [[nodiscard]] const TextLayout& RawLayout() const { return layout_; }
  const GlyphTable& Glyphs();
  [[nodiscard]] TextAlign Align() const { return rules_.align; }

  int ContentHeight();
  int RowTop(std::size_t row) { return kMargin + static_cast<int>(row) * Glyphs().RowHeight(); }
  // The row at `y`. Above the text the first row, below the text the last row.
  std::size_t RowAt(int y);
  TextPlace PlaceAt(QPoint point);
  // The x of a caret position.
  int StopX(std::size_t row, std::size_t pos);
  // The cell of the character at `pos`. At the end of a line, a cell that is one pixel wide.
  QRect CharRect(std::size_t pos);

 private:
  std::function<int()> viewport_width_;
  QFont font_;
  std::unique_ptr<GlyphTable> glyphs_;
  LayoutRules rules_;
  TextLayout layout_;
  bool stale_ = true;
};

}  // namespace pelmar
