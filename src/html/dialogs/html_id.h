// The dialog `HtmlID` inserts the document type before the text.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class HtmlID;
}

namespace pelmar {

class HtmlID : public FragmentDialog<Ui::HtmlID> {
  Q_OBJECT

 public:
  HtmlID(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
