// `Attr` and `Tagy`: attributes for a tag that stands in the text, and a whole tag of the person's own. Their lists
// stay from one opening to the next.
#pragma once

#include "platform/platform.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Attr;
class Tagy;
}  // namespace Ui

namespace pelmar {

class Attr : public FragmentDialog<Ui::Attr> {
  Q_OBJECT

 public:
  Attr(TextBuffer& document, Platform& platform, QWidget* parent);

 private:
  bool Put() override;

  Platform& platform_;
};

class Tagy : public FragmentDialog<Ui::Tagy> {
  Q_OBJECT

 public:
  Tagy(TextBuffer& document, QWidget* parent);

  // Writes the tag that the fields hold, also while the window is hidden.
  void InsertCustomTag();

 private:
  bool Put() override;
};

}  // namespace pelmar
