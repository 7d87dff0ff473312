// Places and sizes of windows in twips, 15 to the logical pixel, outer sizes with the frame: snapping to the screen's
// edges and the layout of the main window. Only computed here; the windows and the status timer apply what comes out.
#pragma once

#include <array>
#include <optional>

#include "platform/twips.h"

namespace pelmar {

inline constexpr int kPanelCount = 7;

// One tick of snapping: a window nearer than `distance` to an edge of its screen goes to it, and one that is nearly as
// wide or high as the screen becomes just so. A second screen begins elsewhere than at 0, 0.
TwipsRect Snap(TwipsRect window, int distance, const TwipsRect& screen);

// Asking a window's place of the system, as long as that may help: a window manager overlooks requests while it moves
// the window itself, and some never let a program place its windows.
class PlaceRequests {
 public:
  // False where a window at `now` was asked often enough to go to `wanted`.
  bool Worthwhile(const TwipsRect& now, const TwipsRect& wanted);

 private:
  TwipsRect now_;
  TwipsRect wanted_;
  int in_vain_ = 0;
};

// The width that panel 4 takes, nothing where it keeps its own. required: the sum includes panel 4's present width, so
// that the width alternates between two values where both are above 0.
std::optional<int> SparePanelWidth(int outer_width, const std::array<int, kPanelCount>& widths);

struct LayoutInput {
  int outer_width = 0;
  int inner_width = 0;
  int inner_height = 0;
  int toolbar_height = 0;
  int bar_height = 0;
  bool toolbar_visible = true;
  bool bar_visible = true;
  bool tabs_visible = true;
  bool minimised = false;
  std::array<int, kPanelCount> panel_widths{};
};

struct LayoutResult {
  // Nothing while the window is minimised.
  std::optional<int> text_width;
  std::optional<int> text_height;
  std::optional<int> tabs_width;
  std::optional<int> panel4_width;
  int grow_outer_height = 0;  // how much higher the window has to become for its bars
  int text_top = 0;
};
LayoutResult ComputeLayout(const LayoutInput& input);

}  // namespace pelmar
