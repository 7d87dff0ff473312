// The clipboard as the program sees it: one text or none. It is asked for twice a second, so the text is fetched
// once for each change that the system announces; a foreign owner may take its time to answer.
#pragma once

#include <QObject>
#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

class Clipboard : public QObject {
  Q_OBJECT

 public:
  Clipboard();

  const std::optional<std::string>& Text();
  void SetText(std::string_view text);
  void Clear();

 private:
  std::optional<std::string> text_;
  bool fresh_ = false;
};

}  // namespace pelmar
