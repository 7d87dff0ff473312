// `Timer1` of the main window: every 500 ms it snaps the marked windows, sets the state of the menus and rewrites the
// status bar. Nothing else updates any of these. Only the snapping runs while another window is active.
#pragma once

#include <QTimer>
#include <map>

#include "shell/editor.h"
#include "shell/window_geometry.h"

namespace pelmar {

class MainWindow;

// Windows whose property `Tag` holds this take part in the snapping.
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
