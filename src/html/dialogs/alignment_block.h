// The horizontal and vertical alignment of a row or a cell. The dialogs `TableRow` and `TableCell` contain this widget.
#pragma once

#include <QWidget>
#include <memory>

#include "html/table_tags.h"

namespace Ui {
class AlignmentBlock;
}

namespace pelmar {

class AlignmentBlock : public QWidget {
  Q_OBJECT

 public:
  explicit AlignmentBlock(QWidget* parent);
  ~AlignmentBlock() override;

  [[nodiscard]] CellAlignment Read() const;

 private:
  void EnableCharacter();

  std::unique_ptr<Ui::AlignmentBlock> ui_;
};

}  // namespace pelmar
