// `Dos_Unix_conv`: converts a file on disk between the line ends of DOS and of Unix, into a new file beside it.
#pragma once

#include <memory>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class Dos_Unix_conv;
}

namespace pelmar {

class Dos_Unix_conv : public DialogWindow {
  Q_OBJECT

 public:
  Dos_Unix_conv(Platform& platform, QWidget* parent);
  ~Dos_Unix_conv() override;

 private:
  void File1_Click();
  void Convert(void (*convert)(Platform&, const std::string& path));

  Platform& platform_;
  std::unique_ptr<Ui::Dos_Unix_conv> ui_;
};

}  // namespace pelmar
