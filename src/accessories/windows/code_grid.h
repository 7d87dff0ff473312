// The pictures of the character table: the grid of the 256 codes, and one enlarged code. Control characters, TAB
// included, are shown by their names. The cell of code 0 stays empty.
#pragma once

#include <memory>

#include "platform/qt/controls/cell_grid.h"

namespace pelmar {

class GlyphTable;

class CodeGrid : public CellGrid {
  Q_OBJECT

 public:
  explicit CodeGrid(QWidget* parent = nullptr);
  ~CodeGrid() override;

  QSize sizeHint() const override { return {417, 385}; }
  static int CodeAt(int row, int column) { return (row - 1) * 16 + column - 1; }

 protected:
  void PaintCell(QPainter& painter, const QRect& cell, int row, int column, bool marked) override;
  void changeEvent(QEvent* event) override;

 private:
  std::unique_ptr<GlyphTable> glyphs_;  // for the present font, made at the first paint with this font
};

class CodePreview : public QWidget {
  Q_OBJECT

 public:
  explicit CodePreview(QWidget* parent = nullptr);
  ~CodePreview() override;

  void SetCode(int code);
  QSize sizeHint() const override { return {84, 84}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  std::unique_ptr<GlyphTable> glyphs_;
  int code_ = -1;
};

}  // namespace pelmar
