// `Odkaz`: a link to an anchor of the same document. Its list is all that the program knows of anchors: those that
// were made in this run, in their order, whichever document they went to.
#pragma once

#include <memory>

#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class Odkaz;
}

namespace pelmar {

class Odkaz : public DialogWindow {
  Q_OBJECT

 public:
  Odkaz(TextBuffer& document, QWidget* parent);
  ~Odkaz() override;

  // At the end of the list, also a name that stands in it already. The field keeps its text.
  void AddAnchor(const QString& name);

 private:
  void Command1_Click();

  TextBuffer& document_;
  std::unique_ptr<Ui::Odkaz> ui_;
};

}  // namespace pelmar
