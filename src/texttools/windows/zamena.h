// `Záměna`: replacing step by step or all at once, with two histories that go row by row.
#pragma once

#include <QRect>
#include <functional>

#include "platform/qt/controls/dialog_window.h"
#include "texttools/replace.h"

namespace Ui {
class Zamena;
}

namespace pelmar {

class Zamena : public FormDialog<Ui::Zamena> {
  Q_OBJECT

 public:
  // `match` is where on the screen the match shows, nothing where it doesn't: the window moves off it.
  Zamena(TextBuffer& document, Platform& platform, std::function<QRect()> match, QWidget* parent);

 private:
  void Start();
  void Step(void (Replacer::*step)());
  void PickRow(int row);
  void TakeFields();
  void ShowFields();

  Replacer replacer_;
  std::function<QRect()> match_;
};

}  // namespace pelmar
