// The dialog `Seznam` inserts a list with bullets.
#pragma once

#include "html/dialogs/item_list_dialog.h"

namespace Ui {
class Seznam;
}

namespace pelmar {

class Seznam : public ItemListDialog<Ui::Seznam> {
  Q_OBJECT

 public:
  Seznam(TextBuffer& buffer, QWidget* parent);
};

}  // namespace pelmar
