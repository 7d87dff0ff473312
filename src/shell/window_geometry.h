// Computes how windows snap to the edges of the screen, and the layout of the main window. Lengths are twips, 15 to the
// logical pixel.
#pragma once

#include <array>
#include <optional>

#include "platform/twips.h"

namespace pelmar {

inline constexpr int kPanelCount = 7;

// The place of a window after it has snapped to the screen. If the window is nearer than `distance` to an edge of the
// screen, or beyond the edge, it goes to the edge. Near two opposite edges it gets the width or height of the screen.
TwipsRect Snap(TwipsRect window, int distance, const TwipsRect& screen);

// Limits the requests to move a window, because some window managers ignore such requests, briefly or always.
class PlaceRequests {
 public:
  // Call at each tick of the window's timer. False if the window is at `wanted` already, or if the window at `now` has
  // ignored too many requests in a row to go to `wanted`.
  bool MayRequest(const TwipsRect& now, const TwipsRect& wanted);

 private:
  TwipsRect now_;
  TwipsRect wanted_;
  int requests_ = 0;  // since the last change of now_ or wanted_
};

// The new width of panel 4, or nothing if the width stays. required: the sum of `widths` includes panel 4. So repeated
// calls alternate between two widths of panel 4 if both are above 0.
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
  // An empty value changes nothing. All four are empty while the window is minimised.
  std::optional<int> text_width;
  std::optional<int> text_height;
  std::optional<int> tabs_width;
  std::optional<int> panel4_width;
  int grow_outer_height = 0;  // the window must grow by this height for its bars
  int text_top = 0;
};
LayoutResult ComputeLayout(const LayoutInput& input);

}  // namespace pelmar
