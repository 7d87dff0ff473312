// The base of `Seznam` and `CisSeznam`, which differ only in the kind of list and its types: the options of the form's
// group `kind`. The items stay from one opening to the next.
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
