// The dialog `Comment` inserts a comment, which the page doesn't show.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Comment;
}

namespace pelmar {

class Comment : public FragmentDialog<Ui::Comment> {
  Q_OBJECT

 public:
  Comment(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
