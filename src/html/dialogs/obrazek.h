// The dialog `Obrazek` inserts an IMG tag for a picture file.
#pragma once

#include "html/dialogs/file_choice.h"
#include "html/image.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Obrazek;
}

namespace pelmar {

class Obrazek : public FragmentDialog<Ui::Obrazek> {
  Q_OBJECT

 public:
  Obrazek(TextBuffer& buffer, std::function<void(const std::string& path)> show_in_browser, QWidget* parent);

 private:
  void EnableGroups();
  [[nodiscard]] ImageSpec Read() const;
  bool Put() override;

  FileChoice choice_;
};

}  // namespace pelmar
