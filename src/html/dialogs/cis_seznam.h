// The dialog `CisSeznam` inserts a numbered list.
#pragma once

#include "html/dialogs/item_list_dialog.h"

namespace Ui {
class CisSeznam;
}

namespace pelmar {

class CisSeznam : public ItemListDialog<Ui::CisSeznam> {
  Q_OBJECT

 public:
  CisSeznam(TextBuffer& buffer, QWidget* parent);
};

}  // namespace pelmar
