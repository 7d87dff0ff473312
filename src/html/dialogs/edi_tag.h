// `EdiTag`: shows the tag around the caret in fields. Each opening makes a new dialog. The dialog blocks the main
// window, so the tag stays selected until Ok replaces the tag.
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
  EdiTag(TextBuffer& buffer, Platform& platform, std::function<Color(Color)> pick_color, QWidget* parent);

  // Reads the tag, with a message if the tag can't be read, and returns when the dialog is closed.
  void Run();

 private:
  bool Put() override;
  void Command6_Click();
  void SetValue(const QString& value);

  Platform& platform_;
};

}  // namespace pelmar
