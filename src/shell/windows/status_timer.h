// `Timer1` of the main window: every 500 ms it snaps the marked windows and, while the main window is the active one,
// sets the state of the menus and shows in the status bar's panels what has changed. Nothing else updates these.
#pragma once

#include <QTimer>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

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
  // What the panels were computed from.
  struct Shown {
    std::uint64_t text = 0;
    std::size_t start = 0, end = 0;
    std::uint64_t clipboard = 0;
    bool line_counting = false;
    bool operator==(const Shown&) const = default;
  };

  void SnapWindows();
  void ShowPanels(const Shown& now, const std::optional<std::string>& clipboard);

  std::map<const QWidget*, PlaceRequests> requests_;
  MainWindow& window_;
  Editor& editor_;
  std::optional<Shown> shown_;
};

}  // namespace pelmar
