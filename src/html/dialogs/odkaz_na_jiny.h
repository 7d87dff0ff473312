// `OdkazNaJiný`: a link to a file that is chosen from lists, or to a typed address.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "html/dialogs/file_choice.h"
#include "html/link.h"
#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class OdkazNaJiny;
}

namespace pelmar {

class OdkazNaJiny : public DialogWindow {
  Q_OBJECT

 public:
  OdkazNaJiny(TextBuffer& document, std::function<void(const std::string& path)> show_in_browser, QWidget* parent);
  ~OdkazNaJiny() override;

 private:
  [[nodiscard]] FileChoice Choice() const;
  void Option_Click();
  void Text1_Change();
  [[nodiscard]] LinkSpec Read() const;
  void Command1_Click();

  TextBuffer& document_;
  std::unique_ptr<Ui::OdkazNaJiny> ui_;
};

}  // namespace pelmar
