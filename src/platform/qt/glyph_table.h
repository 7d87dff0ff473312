// What a font makes of the 256 codes: one glyph and one advance each, without shaping, so that painting and positions
// are equal. Glyphs that the font lacks come from the system's fallback fonts. Control characters other than TAB have
// no glyph and show their short name on a tinted field.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRawFont>
#include <array>
#include <string_view>
#include <vector>

#include "text/text_layout.h"

namespace pelmar {

class GlyphTable {
 public:
  explicit GlyphTable(const QFont& font);

  [[nodiscard]] const AdvanceTable& Advances() const { return advances_; }
  // Whole pixels, so that rows scroll without seams.
  [[nodiscard]] int RowHeight() const { return row_height_; }
  [[nodiscard]] int Ascent() const { return ascent_; }

  // Where a part of a row ends that begins at `x`, in layout units.
  [[nodiscard]] std::int64_t EndOf(std::int64_t x, std::string_view text) const;

  // Draws a part of a row. `x` is its distance from the row's beginning, in layout units (tab stops count from there);
  // `origin` is where the row begins, on the top edge.
  void Draw(QPainter& painter, QPointF origin, std::int64_t x, std::string_view text, const QColor& colour) const;

  // One character by itself, where a TAB shows by its name like the other control characters. The width is in pixels,
  // `at` the character's upper left corner.
  [[nodiscard]] qreal WidthAlone(char ch) const;
  void DrawAlone(QPainter& painter, QPointF at, char ch, const QColor& colour) const;

 private:
  struct Cell {
    quint32 glyph = 0;
    std::uint8_t face = 0;
  };
  struct Run {
    std::vector<quint32> glyphs;
    std::vector<QPointF> places;
  };

  void FillFromFont(const QFont& font);
  void FillFromFallback(const QFont& font, std::size_t code);
  void FillSigns(const QFont& font);
  std::uint8_t FaceIndex(const QRawFont& face);
  [[nodiscard]] qreal SignWidth(unsigned char code) const;
  void DrawSign(QPainter& painter, QPointF at, unsigned char code, const QColor& colour) const;
  void DrawRuns(QPainter& painter, const QColor& colour) const;

  std::vector<QRawFont> faces_;
  std::array<Cell, 256> cells_{};
  AdvanceTable advances_;
  QRawFont sign_face_;
  int row_height_ = 0;
  int ascent_ = 0;
  bool underline_ = false;
  bool strike_out_ = false;
  mutable std::vector<Run> runs_;  // room that painting uses again and again
};

// True for the codes that have no picture of their own and are shown by name.
bool IsControlSign(unsigned char code);
// That name: "CR", "DEL", or the code in hexadecimal; for a TAB too.
QString SignName(unsigned char code);
// A text for labels and lists, with the names of its control characters, TAB included, in their places: some would
// break the line, the others can't be seen.
QString ReadableText(std::string_view text);

}  // namespace pelmar
