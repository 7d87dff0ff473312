// `Kotva`: an anchor at the caret; its name is kept for the dialog that links to it.
#pragma once

#include <functional>
#include <memory>

#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class Kotva;
}

namespace pelmar {

class Kotva : public DialogWindow {
  Q_OBJECT

 public:
  Kotva(TextBuffer& document, std::function<void(const QString& name)> remember, QWidget* parent);
  ~Kotva() override;

 private:
  void Command1_Click();

  TextBuffer& document_;
  std::function<void(const QString& name)> remember_;
  std::unique_ptr<Ui::Kotva> ui_;
};

}  // namespace pelmar
