// Hints in the status bar at what is wrong with the document's text and its file. That the text is too long or mixes
// two encodings stands for as long as it is so. That the file was changed, is in UTF-8 or has other line ends stands
// until the text is changed.
#pragma once

#include <QObject>
#include <array>

#include "files/outside_changes.h"
#include "shell/editor.h"
#include "shell/windows/main/main_window.h"

namespace pelmar {

class FileWarnings : public QObject {
  Q_OBJECT

 public:
  // Belongs to the window.
  FileWarnings(MainWindow& window, Editor& editor, const OutsideChanges& outside);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void WarnOfOutside(OutsideChange change);
  void WarnOfName();
  void WarnOfFormat(bool changed);
  void WarnOfLength();

  MainWindow& window_;
  const Documents& documents_;
  const OutsideChanges& outside_;
  std::array<Listening, 3> heard_;
};

}  // namespace pelmar
