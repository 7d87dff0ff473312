// Drag and drop of text from and into a text box. Inside one box text moves (with Ctrl it is copied) in one step of
// undo. Files and links are not text: they are left to the windows around.
#pragma once

#include <QDropEvent>
#include <QObject>

#include "text/text_buffer.h"

namespace pelmar {

class TextBox;

// Moves or copies the selection to `to` and leaves it selected there. Nothing where it would fall onto itself.
void MoveSelection(TextBuffer& buffer, std::size_t to, bool copy);

class TextDrop {
 public:
  explicit TextDrop(TextBox& box) : box_(box) {}

  // Drags the selection of `box`; returns when it was dropped.
  static void StartDrag(TextBox& box);

  void Enter(QDragEnterEvent* event);
  void Move(QDragMoveEvent* event);
  void Leave(QDragLeaveEvent* event);
  void Drop(QDropEvent* event);

 private:
  [[nodiscard]] bool Takes(const QDropEvent& event) const;
  [[nodiscard]] bool IsOwn(const QDropEvent& event) const;
  void Accept(QDropEvent& event) const;

  TextBox& box_;
};

}  // namespace pelmar
