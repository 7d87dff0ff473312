// The text of the clipboard. The active main window reads the clipboard twice a second, and another program may be slow
// to answer. So the text is fetched at most once after each change.
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

  const std::optional<std::string>& Content();
  void SetText(std::string_view text);
  void Clear();

 private:
  std::optional<std::string> text_;
  std::uint64_t revision_ = 1;  // a new number after each change of the clipboard
  std::uint64_t fetched_ = 0;   // the revision of text_
};

// Wayland shows the clipboard only to the program with the keyboard focus. So under Wayland `act` is called once, at
// the next change of the focused window, unless `context` is deleted before. On other platforms `act` is never called.
void WhenClipboardComes(QObject& context, std::function<void()> act);

}  // namespace pelmar
