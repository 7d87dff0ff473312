// `Obrazek`: one IMG tag at the caret, for a picture that is chosen from lists.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "html/dialogs/file_choice.h"
#include "html/image.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class Obrazek;
}

namespace pelmar {

class Obrazek : public DialogWindow {
  Q_OBJECT

 public:
  Obrazek(TextBuffer& document, std::function<void(const std::string& path)> show_in_browser, QWidget* parent);
  ~Obrazek() override;

 private:
  [[nodiscard]] FileChoice Choice() const;
  void EnableGroups();
  void SetUnit(bool percent);
  [[nodiscard]] QString SizeText(int value) const;
  [[nodiscard]] ImageSpec Read() const;
  void Command1_Click();

  TextBuffer& document_;
  std::unique_ptr<Ui::Obrazek> ui_;
};

}  // namespace pelmar
