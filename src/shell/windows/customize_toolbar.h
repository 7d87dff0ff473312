// The customising dialog of the toolbar: which buttons it shows, and in which order. Works on the toolbar at once; the
// result isn't stored.
#pragma once

#include <memory>

#include "platform/qt/controls/dialog_window.h"
#include "shell/windows/main_toolbar.h"

namespace Ui {
class CustomizeToolbar;
}

namespace pelmar {

class CustomizeToolbar : public DialogWindow {
  Q_OBJECT

 public:
  CustomizeToolbar(MainToolbar& toolbar, QWidget* parent);
  ~CustomizeToolbar() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Fill();
  void Apply();
  void Move(int by);
  void Reset();

  MainToolbar& toolbar_;
  std::unique_ptr<Ui::CustomizeToolbar> ui_;
};

}  // namespace pelmar
