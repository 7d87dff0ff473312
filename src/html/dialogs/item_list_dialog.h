// The base of the dialogs `Seznam` and `CisSeznam`, which insert lists. The two dialogs differ in the kind of list and
// in the types that the person can choose. The options of the form's group `kind` set the type. Each dialog keeps the
// items for the next opening.
#pragma once

#include "html/lists.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace pelmar {

template <class Form>
class ItemListDialog : public FragmentDialog<Form> {
 protected:
  ItemListDialog(TextBuffer& buffer, ListKind kind, QWidget* parent);

  bool Put() override;

 private:
  void Command1_Click();
  void Command2_Click();

  ListKind kind_;
};

}  // namespace pelmar
