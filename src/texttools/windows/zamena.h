// `Záměna`: replacing step by step or all at once, with two histories that go row by row.
#pragma once

#include <memory>

#include "platform/qt/controls/dialog_window.h"
#include "texttools/replace.h"

namespace Ui {
class Zamena;
}

namespace pelmar {

class Zamena : public DialogWindow {
  Q_OBJECT

 public:
  Zamena(TextBuffer& document, Platform& platform, QWidget* parent);
  ~Zamena() override;

 private:
  void Start();
  void Step(void (Replacer::*step)());
  void PickRow(int row);
  void TakeFields();
  void ShowFields();

  Replacer replacer_;
  std::unique_ptr<Ui::Zamena> ui_;
};

}  // namespace pelmar
