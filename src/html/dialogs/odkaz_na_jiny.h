// The dialog `OdkazNaJiný` makes the selection a link to a file or to a typed address.
#pragma once

#include "html/dialogs/file_choice.h"
#include "html/link.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class OdkazNaJiny;
}

namespace pelmar {

class OdkazNaJiny : public FragmentDialog<Ui::OdkazNaJiny> {
  Q_OBJECT

 public:
  OdkazNaJiny(TextBuffer& buffer, std::function<void(const std::string& path)> show_in_browser, QWidget* parent);

 private:
  void Option_Click();
  void Text1_Change();
  [[nodiscard]] LinkSpec Read() const;
  bool Put() override;

  FileChoice choice_;
};

}  // namespace pelmar
