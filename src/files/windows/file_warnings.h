// Warns in the status bar of a text that could be saved but not opened again, for as long as it is that long, and of
// the file of the document on show, until the person works on: that it was changed meanwhile, when the main window
// becomes active and when its tab comes on show; that it is in UTF-8, when it is opened or saved and when its tab comes
// on show.
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
  void WarnOfUtf8();

  MainWindow& window_;
  const Documents& documents_;
  const OutsideChanges& outside_;
  std::array<Listening, 3> heard_;
};

}  // namespace pelmar
