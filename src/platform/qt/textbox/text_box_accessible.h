// Presents a text box to assistive technology. Offsets are byte positions, since each byte is one character.
#pragma once

#include <QAccessibleWidget>
#include <optional>
#include <string>

#include "platform/qt/textbox/text_box.h"

namespace pelmar {

class TextBoxAccessible : public QAccessibleWidget,
                          public QAccessibleTextInterface,
                          public QAccessibleEditableTextInterface {
 public:
  explicit TextBoxAccessible(TextBox& box);

  void* interface_cast(QAccessible::InterfaceType type) override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QString text(QAccessible::Text type) const override;

  void selection(int index, int* start, int* end) const override;
  [[nodiscard]] int selectionCount() const override;
  void addSelection(int start, int end) override;
  void removeSelection(int index) override;
  void setSelection(int index, int start, int end) override;
  [[nodiscard]] int cursorPosition() const override;
  void setCursorPosition(int position) override;
  [[nodiscard]] QString text(int start, int end) const override;
  QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start, int* end) const override;
  [[nodiscard]] int characterCount() const override;
  [[nodiscard]] QRect characterRect(int offset) const override;
  [[nodiscard]] int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int end) override;
  QString attributes(int offset, int* start, int* end) const override;

  void deleteText(int start, int end) override;
  void insertText(int offset, const QString& text) override;
  void replaceText(int start, int end, const QString& text) override;

 private:
  [[nodiscard]] TextSpan UnitAt(std::size_t pos, QAccessible::TextBoundaryType type) const;

  TextBox& box_;
};

// Notifies assistive technology of changes. Sends nothing if no such technology runs.
class TextBoxNotifier {
 public:
  explicit TextBoxNotifier(TextBox& box) : box_(box) {}

  void Changed(const TextChange& change);
  void CaretMoved();
  // Call when the box shows another buffer or has missed a change.
  void Forget() { known_text_.reset(); }

 private:
  void NotifyCaret();

  TextBox& box_;
  // A copy of the text before the next change. The notification of that change contains the removed text, which the
  // buffer no longer has after the change.
  std::optional<std::string> known_text_;
};

}  // namespace pelmar
