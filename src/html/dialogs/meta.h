// The dialog `Meta` inserts a META tag. The person chooses the tag from a list or types it.
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
