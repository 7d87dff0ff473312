// The glyph and the advance of each of the 256 Windows-1250 codes in a font. Each glyph is painted at the sum of the
// advances before it, without kerning and ligatures. Missing glyphs come from the system's fallback fonts. A control
// character other than TAB is shown as a sign: its SignName on a tinted field.
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
  // In whole pixels, so that rows scroll without gaps.
  [[nodiscard]] int RowHeight() const { return row_height_; }
  [[nodiscard]] int Ascent() const { return ascent_; }

  // The right end of a text that begins at `x`, both in layout units from the beginning of the row.
  [[nodiscard]] std::int64_t EndOf(std::int64_t x, std::string_view text) const;

  // Draws a part of a row. `x` is the beginning of the part, in layout units from the beginning of the row. Tab stops
  // count from the beginning of the row. `origin` is the upper left corner of the row.
  void Draw(QPainter& painter, QPointF origin, std::int64_t x, std::string_view text, const QColor& colour) const;

  // Measure and draw a single character outside a row. Here a TAB is shown as a sign too. The width is in pixels. `at`
  // is the upper left corner.
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
  mutable std::vector<Run> runs_;  // memory that each Draw reuses
};

// Whether rows show the code as a sign. False for TAB.
bool IsControlSign(unsigned char code);
// The name of a control character: "CR", "DEL", "HT" for TAB. The code in hexadecimal if there is no name.
QString SignName(unsigned char code);
// The text for a label or a list. SignName replaces each control character, TAB included. Otherwise the control
// characters would break lines or be invisible.
QString ReadableText(std::string_view text);

}  // namespace pelmar
