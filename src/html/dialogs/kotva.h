// The dialog `Kotva` inserts an anchor. The dialog `Odkaz` then offers the name of the anchor.
#pragma once

#include <functional>

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Kotva;
}

namespace pelmar {

class Kotva : public FragmentDialog<Ui::Kotva> {
  Q_OBJECT

 public:
  Kotva(TextBuffer& buffer, std::function<void(const QString& name)> remember, QWidget* parent);

 private:
  bool Put() override;

  std::function<void(const QString& name)> remember_;
};

}  // namespace pelmar
