// Drag and drop of text from and into a text box. Inside one box text moves (with Ctrl it is copied) in one step of
// undo. Files and links are not text: they are left to the windows around.
#pragma once

#include <QDropEvent>
#include <QObject>

namespace pelmar {

class TextBox;

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
  void MoveSelection(std::size_t to, bool copy);

  TextBox& box_;
};

}  // namespace pelmar
