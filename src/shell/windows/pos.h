// The layout picker `Pos` moves the main window to one of nine parts of the screen.
#pragma once

#include "platform/qt/controls/dialog_window.h"
#include "shell/main_view.h"

namespace Ui {
class Pos;
}

namespace pelmar {

class Pos : public FormDialog<Ui::Pos> {
  Q_OBJECT

 public:
  Pos(MainPlace& main, QWidget* parent);

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  MainPlace& main_;
};

}  // namespace pelmar
