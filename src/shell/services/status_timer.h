// `Timer1` of the main window. Every 500 ms the timer snaps windows to the screen edges. While the main window is
// active, the timer also enables or disables menu items and updates the panels of the status bar.
#pragma once

#include <QTimer>
#include <map>

#include "shell/editor.h"
#include "shell/window_geometry.h"

namespace pelmar {

class MainWindow;

// Windows whose property `Tag` is kAutosnapTag are snapped.
inline constexpr char kTagProperty[] = "Tag";
inline constexpr char kAutosnapTag[] = "_AUTOSNAP";

class StatusTimer : public QTimer {
  Q_OBJECT

 public:
  StatusTimer(MainWindow& window, Editor& editor);

  void Tick();

 private:
  void SnapWindows();

  std::map<const QWidget*, PlaceRequests> requests_;
  MainWindow& window_;
  Editor& editor_;
};

}  // namespace pelmar
