// `Formatuj`: the column tool for the selected lines. Only the constructor reads the selection, so each opening makes a
// new dialog.
#pragma once

#include <functional>

#include "platform/platform.h"
#include "platform/qt/controls/fragment_dialog.h"
#include "texttools/column_format.h"

namespace Ui {
class Formatuj;
}

namespace pelmar {

class Formatuj : public FragmentDialog<Ui::Formatuj> {
  Q_OBJECT

 public:
  Formatuj(TextBuffer& buffer, Platform& platform, QWidget* parent);

 private:
  void Load(Platform& platform);
  void ConnectOperations();
  void Change(const std::function<void(Rows& rows)>& operation);
  void ShowShortest(std::size_t length);
  void List1_Click(int row);
  void Text3_Change();
  bool Put() override;

  Rows rows_;
};

}  // namespace pelmar
