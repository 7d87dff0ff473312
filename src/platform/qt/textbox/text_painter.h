// Paints rows of a text: selection and glyphs, with a gap for what an input method is still composing, which
// TextComposer paints. Holds references only and lives for one paint.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include "platform/qt/glyph_table.h"
#include "text/text_layout.h"
#include "text/text_stops.h"

namespace pelmar {

struct TextColours {
  QColor text;
  QColor selected_text;
  QColor selection;
};

class TextPainter {
 public:
  TextPainter(QPainter& painter, const TextBuffer& buffer, const TextLayout& layout, const GlyphTable& glyphs,
              const TextColours& colours)
      : painter_(painter), buffer_(buffer), layout_(layout), glyphs_(glyphs), colours_(colours) {}

  // Paints what of a row lies between `left` and `right`. `origin` is the upper left corner of the row's window: its
  // text begins at the row's own left distance from there.
  void PaintRow(std::size_t row, QPointF origin, qreal left, qreal right) const;
  // Leaves room for composed text: what stands behind `pos` in row `row` moves on by `width` pixels.
  void OpenGap(std::size_t row, std::size_t pos, qreal width);

 private:
  void PaintPart(std::size_t row, TextSpan part, QPointF origin, bool selected) const;
  void PaintSelection(std::size_t row, TextSpan selected, QPointF begin) const;
  [[nodiscard]] qreal X(std::size_t row, std::size_t pos) const;

  QPainter& painter_;
  const TextBuffer& buffer_;
  const TextLayout& layout_;
  const GlyphTable& glyphs_;
  const TextColours& colours_;
  std::size_t gap_row_ = static_cast<std::size_t>(-1);
  std::size_t gap_pos_ = 0;
  qreal gap_ = 0;
};

}  // namespace pelmar
