// `Odkaz`: a link to an anchor of the same document. The list offers all anchors made in this run, in their order, also
// those made for other documents.
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
