#include "accessories/windows/code_grid.h"

#include <QEvent>

#include "platform/qt/controls/accessible_face.h"
#include "platform/qt/controls/picture_edge.h"
#include "platform/qt/glyph_table.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr int kSide = 16;
constexpr int kPreviewPoints = 36;
constexpr int kPreviewEdge = 10;

}  // namespace

CodeGrid::CodeGrid(QWidget* parent) : CellGrid(kSide, parent) {}

CodeGrid::~CodeGrid() = default;

void CodeGrid::PaintCell(QPainter& painter, const QRect& cell, int row, int column, bool marked) {
  const int code = CodeAt(row, column);
  if (code == 0) return;  // required: the cell of code 0 stays empty
  if (!glyphs_) glyphs_ = std::make_unique<GlyphTable>(font());
  const char character = CharOf(code);
  const int above = (cell.height() - glyphs_->RowHeight()) / 2;  // whole pixels keep the character sharp
  const QPointF at(cell.left() + (cell.width() - glyphs_->WidthAlone(character)) / 2, cell.top() + above);
  glyphs_->DrawAlone(painter, at, character, palette().color(marked ? QPalette::HighlightedText : QPalette::Text));
}

void CodeGrid::changeEvent(QEvent* event) {
  CellGrid::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  glyphs_.reset();
  update();
}

CodePreview::CodePreview(QWidget* parent) : QWidget(parent) { SetAccessibleRole(*this, QAccessible::Graphic); }

CodePreview::~CodePreview() = default;

void CodePreview::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) glyphs_.reset();
}

void CodePreview::SetCode(int code) {
  code_ = code;
  update();
}

void CodePreview::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().brush(QPalette::Base));
  if (code_ >= 0) {
    if (!glyphs_) {
      QFont large = font();
      large.setPointSize(kPreviewPoints);
      glyphs_ = std::make_unique<GlyphTable>(large);
    }
    glyphs_->DrawAlone(painter, QPointF(kPreviewEdge, kPreviewEdge), CharOf(code_), palette().color(QPalette::Text));
  }
  DrawEdge(painter, *this);
}

}  // namespace pelmar
