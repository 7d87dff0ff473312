// `Timer1` of the main window. Every 500 ms the timer snaps windows to the screen edges. While the main window is
// active, the timer also enables or disables menu items and updates the panels of the status bar.
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

// Windows whose property `Tag` is kAutosnapTag are snapped.
inline constexpr char kTagProperty[] = "Tag";
inline constexpr char kAutosnapTag[] = "_AUTOSNAP";

class StatusTimer : public QTimer {
  Q_OBJECT

 public:
  StatusTimer(MainWindow& window, Editor& editor);

  void Tick();

 private:
  // The texts of panels 1 to 3 depend on these values.
  struct TextState {
    std::uint64_t text = 0;  // the revision of the text
    std::size_t start = 0, end = 0;
    bool line_counting = false;
    bool operator==(const TextState&) const = default;
  };
  // The text of panel 4 depends on these values.
  struct ContentState {
    TextState selected;           // default values if nothing is selected
    std::uint64_t clipboard = 0;  // the revision of the clipboard
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
