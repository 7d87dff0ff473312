// Warns in the status bar that another program was at the file of the document on show: when the main window becomes
// active and when a tab comes on show, until the person works on.
#pragma once

#include <QObject>
#include <array>

#include "files/outside_changes.h"
#include "shell/editor.h"
#include "shell/windows/main_window.h"

namespace pelmar {

class OutsideWatch : public QObject {
  Q_OBJECT

 public:
  // Belongs to the window.
  OutsideWatch(MainWindow& window, Editor& editor, const OutsideChanges& outside);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Warn(OutsideChange change);

  MainWindow& window_;
  const OutsideChanges& outside_;
  std::array<Listening, 3> heard_;
};

}  // namespace pelmar
