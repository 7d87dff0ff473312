// `Seznam`, `CisSeznam` and `SeznamDef`: lists of items with bullets, of numbered items, and of terms and definitions.
// Their items stay from one opening to the next.
#pragma once

#include "html/lists.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Seznam;
class CisSeznam;
class SeznamDef;
}  // namespace Ui

namespace pelmar {

class PairedLists;

// The first two, which differ only in the kind of list and its types: the options of the form's group `kind`.
template <class Form>
class ItemListDialog : public FragmentDialog<Form> {
 protected:
  ItemListDialog(TextBuffer& document, ListKind kind, QWidget* parent);

  bool Put() override;

 private:
  void Command1_Click();
  void Command2_Click();

  ListKind kind_;
};

class Seznam : public ItemListDialog<Ui::Seznam> {
  Q_OBJECT

 public:
  Seznam(TextBuffer& document, QWidget* parent);
};

class CisSeznam : public ItemListDialog<Ui::CisSeznam> {
  Q_OBJECT

 public:
  CisSeznam(TextBuffer& document, QWidget* parent);
};

class SeznamDef : public FragmentDialog<Ui::SeznamDef> {
  Q_OBJECT

 public:
  SeznamDef(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;

  PairedLists* lists_;
};

}  // namespace pelmar
