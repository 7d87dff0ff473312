#include "html/dialogs/comment.h"

#include "html/blocks.h"
#include "platform/qt/controls/field_helpers.h"
#include "ui_comment.h"

namespace pelmar {

Comment::Comment(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {}

bool Comment::Put() { return Insert(CommentText(FieldText(*ui_->Text1))); }

}  // namespace pelmar
