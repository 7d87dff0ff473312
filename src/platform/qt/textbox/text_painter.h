// Paints the selection and the glyphs of rows. Leaves a gap for composed text, which TextComposer paints. An object
// holds references to its arguments, so create a new object for each paint.
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

  // Paints the part of a row between `left` and `right`. `origin` is the upper left corner of the row's area. The text
  // begins TextLayout::RowLeft further right. `left`, `right` and `origin` are in the painter's coordinates.
  void PaintRow(std::size_t row, QPointF origin, qreal left, qreal right) const;
  // Makes room for composed text: moves the text after `pos` in the row to the right by `width` pixels.
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
