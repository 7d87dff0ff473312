// Drag and drop of text from and into a text box. Inside one box a drag moves the text, or copies the text with Ctrl,
// in one step of undo. Files and links are left to the parent widgets.
#pragma once

#include <QDropEvent>
#include <QObject>
#include <QTimer>

#include "text/text_buffer.h"

namespace pelmar {

class TextBox;

// Moves or copies the selection to `to` and selects the result. A move into the selection or to its edge does nothing.
void MoveSelection(TextBuffer& buffer, std::size_t to, bool copy);

class TextDrop {
 public:
  explicit TextDrop(TextBox& box);

  // Drags the selection of `box`. Returns after the drop or a cancel. After a move to another target, deletes the
  // selection, unless the selection has changed during the drag.
  static void StartDrag(TextBox& box);

  void Move(QDragMoveEvent* event);
  void Leave();
  void Drop(QDropEvent* event);

 private:
  [[nodiscard]] bool Takes(const QDropEvent& event) const;
  [[nodiscard]] bool IsOwn(const QDropEvent& event) const;
  void Accept(QDropEvent& event) const;
  void ScrollAtEdge();

  TextBox& box_;
  QPoint at_;            // where the pointer is during a drag
  QTimer scroll_timer_;  // runs while the pointer is at the upper or lower edge
};

}  // namespace pelmar
