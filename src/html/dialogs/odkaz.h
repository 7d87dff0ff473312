// The dialog `Odkaz` makes the selection a link to an anchor of the document. The list contains all anchors that the
// dialog `Kotva` has inserted since the start of the program, also those of other documents.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Odkaz;
}

namespace pelmar {

class Odkaz : public FragmentDialog<Ui::Odkaz> {
  Q_OBJECT

 public:
  Odkaz(TextBuffer& buffer, QWidget* parent);

  // Appends the name to the list, even if the list has the name already. The field keeps its text.
  void AddAnchor(const QString& name);

 private:
  bool Put() override;
};

}  // namespace pelmar
