// The clipboard as the program sees it: one text or none. It is asked for twice a second, so the text is fetched
// once for each change that the system announces; a foreign owner may take its time to answer.
#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

class Clipboard : public QObject {
  Q_OBJECT

 public:
  Clipboard();

  const std::optional<std::string>& Text();
  // Another number after each change.
  [[nodiscard]] std::uint64_t Revision() const { return revision_; }
  void SetText(std::string_view text);
  void Clear();

 private:
  std::optional<std::string> text_;
  std::uint64_t revision_ = 1;
  std::uint64_t fetched_ = 0;  // the revision whose text is here
};

// Wayland tells the clipboard's content only to the program that has the keyboard: there `act` is called when a window
// gets it for the first time, for as long as `context` lives. Elsewhere the content is known from the start on, and
// nothing is called.
void WhenClipboardComes(QObject& context, std::function<void()> act);

}  // namespace pelmar
