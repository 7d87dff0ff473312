// `Odkaz`: a link to an anchor of the same document. Its list is all that the program knows of anchors: those that
// were made in this run, in their order, whichever document they went to.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Odkaz;
}

namespace pelmar {

class Odkaz : public FragmentDialog<Ui::Odkaz> {
  Q_OBJECT

 public:
  Odkaz(TextBuffer& document, QWidget* parent);

  // At the end of the list, also a name that stands in it already. The field keeps its text.
  void AddAnchor(const QString& name);

 private:
  bool Put() override;
};

}  // namespace pelmar
