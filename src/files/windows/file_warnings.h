// Hints in the status bar about the document's text and file. A hint about a text that is too long or in two encodings
// stays until the text is corrected. A hint about a changed file, UTF-8 or line ends disappears when the text changes,
// and may return when a tab is selected or when the main window gains or loses the keyboard focus.
#pragma once

#include <QObject>
#include <array>
#include <string_view>

#include "shell/editor.h"
#include "shell/windows/main/main_window.h"

namespace pelmar {

class FileWarnings : public QObject {
  Q_OBJECT

 public:
  // The window owns this object.
  FileWarnings(MainWindow& window, Editor& editor);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void WarnOfOutside(std::string_view notice);
  void CheckDisk();
  void WarnOfName();
  void WarnOfFormat(bool changed);
  void WarnOfLength();

  MainWindow& window_;
  const Documents& documents_;
  Platform& platform_;
  std::array<Listening, 3> listenings_;
};

}  // namespace pelmar
