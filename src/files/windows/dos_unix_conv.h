// The dialog `Dos_Unix_conv` converts a file on disk between the line ends of DOS and of Unix, or between UTF-8 and
// Windows-1250. The result is another file.
#pragma once

#include <functional>
#include <string>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class Dos_Unix_conv;
}

namespace pelmar {

class Dos_Unix_conv : public FormDialog<Ui::Dos_Unix_conv> {
  Q_OBJECT

 public:
  Dos_Unix_conv(Platform& platform, QWidget* parent);

 private:
  void File1_Click();
  void Convert(const std::function<void(const std::string& path)>& convert);

  Platform& platform_;
};

}  // namespace pelmar
