// Hints in the status bar about the document. A change of the text updates the hints about a text that is too long or
// in two encodings, and removes the hints about a changed file, UTF-8 and line ends. An open or a save removes the hint
// about a changed file, and updates the hints about encodings, line ends and the name of the file. When the main window
// gains or loses the focus, the hints about a changed file and the name are updated. Selecting a tab updates all hints.
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
