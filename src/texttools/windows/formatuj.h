// `Formatuj`: the column tool over the selected lines. It reads the selection once, when it is made, so each opening
// takes a new one.
#pragma once

#include <functional>
#include <memory>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"
#include "texttools/column_format.h"

namespace Ui {
class Formatuj;
}

namespace pelmar {

class Formatuj : public DialogWindow {
  Q_OBJECT

 public:
  Formatuj(TextBuffer& document, Platform& platform, QWidget* parent);
  ~Formatuj() override;

 private:
  void Load(Platform& platform);
  void ConnectOperations();
  void Change(const std::function<void(Rows& rows)>& operation);
  void ShowShortest(std::size_t length);
  void List1_Click(int row);
  void Text3_Change();
  void Command2_Click();

  TextBuffer& document_;
  Rows rows_;
  std::unique_ptr<Ui::Formatuj> ui_;
};

}  // namespace pelmar
