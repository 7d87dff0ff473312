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
  if (event->type() == QEvent::FontChange) glyphs_.reset();
  CellGrid::changeEvent(event);
}

CodePreview::CodePreview(QWidget* parent) : QWidget(parent) { SetAccessibleRole(*this, QAccessible::Graphic); }

void CodePreview::SetCode(int code) {
  code_ = code;
  update();
}

void CodePreview::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().brush(QPalette::Base));
  if (code_ >= 0) {
    QFont large = font();
    large.setPointSize(kPreviewPoints);
    const QPointF at(kPreviewEdge, kPreviewEdge);
    GlyphTable(large).DrawAlone(painter, at, CharOf(code_), palette().color(QPalette::Text));
  }
  DrawEdge(painter, *this);
}

}  // namespace pelmar
