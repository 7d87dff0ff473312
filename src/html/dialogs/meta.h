// The dialog `Meta` inserts the text that the person chooses from a list of META tags, or types.
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
