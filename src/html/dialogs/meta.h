// `Meta`: a META tag from a list, or as a person types it.
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
