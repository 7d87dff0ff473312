// `Hledání`: finding step by step in a snapshot of the document, with a history of what was sought.
#pragma once

#include <QRect>
#include <functional>

#include "platform/qt/controls/dialog_window.h"
#include "texttools/find.h"

namespace Ui {
class Hledani;
}

namespace pelmar {

class Hledani : public FormDialog<Ui::Hledani> {
  Q_OBJECT

 public:
  // `match` is where on the screen the match shows, nothing where it doesn't: the window moves off it.
  Hledani(TextBuffer& document, Platform& platform, std::function<QRect()> match, QWidget* parent);

 private:
  void Step(void (Finder::*step)());
  void TakeFields();
  void ShowFields();

  Finder finder_;
  std::function<QRect()> match_;
};

}  // namespace pelmar
