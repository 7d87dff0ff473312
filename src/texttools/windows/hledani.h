// `Hledání`: finding step by step in a snapshot of the document, with a history of what was sought.
#pragma once

#include <memory>

#include "platform/qt/controls/dialog_window.h"
#include "texttools/find.h"

namespace Ui {
class Hledani;
}

namespace pelmar {

class Hledani : public DialogWindow {
  Q_OBJECT

 public:
  Hledani(TextBuffer& document, Platform& platform, QWidget* parent);
  ~Hledani() override;

 private:
  void Step(void (Finder::*step)());
  void TakeFields();
  void ShowFields();

  Finder finder_;
  std::unique_ptr<Ui::Hledani> ui_;
};

}  // namespace pelmar
