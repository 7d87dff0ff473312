// The fields of the dialog `EdiTag` show the tag that OpenTag() selects. Ok replaces this tag. If OpenTag() selects no
// tag, Ok replaces the person's selection. Each opening creates a new dialog. The dialog blocks the main window, so
// that the tag stays selected until Ok.
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

  // Reads the tag, runs the dialog and returns when the dialog is closed. If there is no tag or the tag can't be read,
  // a message says so before the dialog opens.
  void Run();

 private:
  bool Put() override;
  void Command6_Click();
  void SetValue(const QString& value);

  Platform& platform_;
};

}  // namespace pelmar
