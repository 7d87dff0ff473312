// Warns in the status bar of a text that could be saved but not opened again, for as long as it is that long, and of
// the file of the document on show, until the person works on: that it was changed meanwhile, when the main window
// becomes active and when its tab comes on show; that its encoding or its line ends are those of other systems, when it
// is opened or saved and when its tab comes on show.
#pragma once

#include <QObject>
#include <array>

#include "files/outside_changes.h"
#include "shell/editor.h"
#include "shell/windows/main_window.h"

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
  void WarnOfFormat();

  MainWindow& window_;
  const Documents& documents_;
  const OutsideChanges& outside_;
  std::array<Listening, 3> heard_;
};

}  // namespace pelmar
