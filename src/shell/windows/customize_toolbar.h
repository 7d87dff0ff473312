// The dialog in which the person hides, shows and orders the buttons of the toolbar. Changes apply at once and are lost
// at the program's end.
#pragma once

#include "platform/qt/controls/dialog_window.h"
#include "shell/windows/main/main_toolbar.h"

namespace Ui {
class CustomizeToolbar;
}

namespace pelmar {

class CustomizeToolbar : public FormDialog<Ui::CustomizeToolbar> {
  Q_OBJECT

 public:
  CustomizeToolbar(MainToolbar& toolbar, QWidget* parent);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Fill();
  void Apply();
  void Move(int by);
  void Reset();

  MainToolbar& toolbar_;
};

}  // namespace pelmar
