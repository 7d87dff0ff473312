// `EdiTag`: the tag around the caret in fields. A fresh one is made for each opening; it blocks the main window, so the
// tag stays selected until it is written over.
#pragma once

#include <functional>

#include "platform/color.h"
#include "platform/platform.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class EdiTag;
}

namespace pelmar {

class EdiTag : public FragmentDialog<Ui::EdiTag> {
  Q_OBJECT

 public:
  EdiTag(TextBuffer& document, Platform& platform, std::function<Color(Color)> pick_color, QWidget* parent);

  // Reads the tag, with a message where that fails, and returns when the dialog is closed.
  void Run();

 private:
  bool Put() override;
  void Command6_Click();
  void SetValue(const QString& value);

  Platform& platform_;
};

}  // namespace pelmar
