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
  // What panels 1 to 3 were made from.
  struct TextState {
    std::uint64_t text = 0;
    std::size_t start = 0, end = 0;
    bool line_counting = false;
    bool operator==(const TextState&) const = default;
  };
  // What panel 4 was.
  struct ContentState {
    TextState selected;  // as new where nothing is
    std::uint64_t clipboard = 0;
    bool operator==(const ContentState&) const = default;
  };

  void SnapWindows();
  void ShowPanels(std::uint64_t clipboard_revision, const std::optional<std::string>& clipboard);

  std::map<const QWidget*, PlaceRequests> requests_;
  MainWindow& window_;
  Editor& editor_;
  std::optional<TextState> shown_text_;
  std::optional<ContentState> shown_content_;
};

}  // namespace pelmar
