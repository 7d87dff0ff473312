// The dialog `Meta` inserts a META tag, which the person chooses from a list or types.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Meta;
}

namespace pelmar {

class Meta : public FragmentDialog<Ui::Meta> {
  Q_OBJECT

 public:
  Meta(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
