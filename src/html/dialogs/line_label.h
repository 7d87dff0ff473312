// The dialog `LineLabel` inserts a heading between two horizontal lines.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class LineLabel;
}

namespace pelmar {

class LineLabel : public FragmentDialog<Ui::LineLabel> {
  Q_OBJECT

 public:
  LineLabel(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
