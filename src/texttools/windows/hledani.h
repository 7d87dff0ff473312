// `Hledání`: finds step by step in a copy of the document, with a history of the search terms.
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
  // `match` returns the screen rectangle of the match, empty if the match isn't visible. The dialog moves off it.
  Hledani(TextBuffer& buffer, Platform& platform, std::function<QRect()> match, QWidget* parent);

 private:
  void Step(void (Finder::*step)());
  void TakeFields();
  void ShowFields();

  Finder finder_;
  std::function<QRect()> match_;
};

}  // namespace pelmar
