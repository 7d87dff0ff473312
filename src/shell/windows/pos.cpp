#include "shell/windows/pos.h"

#include "platform/qt/convert.h"
#include "platform/qt/frames/outer_geometry.h"
#include "shell/layout_picker.h"
#include "ui_pos.h"

namespace pelmar {

Pos::Pos(MainPlace& main, QWidget* parent) : FormDialog(parent), main_(main) {
  const auto place_of = [this](int row, int column) { return PlaceOfCell(row, column, ScreenTwips(main_.Place())); };
  connect(ui_->Picture1, &CellGrid::CellEntered, this,
          [this, place_of](int row, int column) { ui_->Label1->setText(Utf8ToQString(place_of(row, column).name)); });
  connect(ui_->Picture1, &CellGrid::CellChosen, this, [this, place_of](int row, int column) {
    main_.SetNormalState();
    main_.MoveTo(place_of(row, column).place);
  });
  ui_->Picture1->NameCells([place_of](int row, int column) { return Utf8ToQString(place_of(row, column).name); });
  connect(ui_->Command1, &QPushButton::clicked, this, &Pos::hide);
}

// Unmarks the marked cell when the mouse moves in the dialog outside the grid.
void Pos::mouseMoveEvent(QMouseEvent*) {
  ui_->Label1->clear();
  ui_->Picture1->Clear();
}

}  // namespace pelmar
