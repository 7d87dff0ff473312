#include "shell/window_geometry.h"

#include <algorithm>
#include <numeric>

namespace pelmar {
namespace {

constexpr int kTabStripWidth = 360;
constexpr int kPanelMargin = 420;
constexpr int kNeededMargin = 270;
constexpr int kTextOverlap = 10;
constexpr int kMostRequests = 50;
constexpr int kFarthest = 1'000'000;  // more than any screen

}  // namespace

TwipsRect Snap(TwipsRect window, int distance, const TwipsRect& screen) {
  distance = std::clamp(distance, -kFarthest, kFarthest);  // so that sums can't overflow
  window.left -= screen.left;
  window.top -= screen.top;
  // Each test uses the values set by the lines above.
  if (window.left + window.width - screen.width > -distance && window.left < distance) window.width = screen.width;
  if (window.top + window.height - screen.height > -distance && window.top < distance) window.height = screen.height;
  if (window.left < distance) window.left = 0;
  if (window.top < distance) window.top = 0;
  if (window.left + window.width - screen.width > -distance) window.left = screen.width - window.width;
  if (window.top + window.height - screen.height > -distance) window.top = screen.height - window.height;
  window.left += screen.left;
  window.top += screen.top;
  return window;
}

bool PlaceRequests::MayRequest(const TwipsRect& now, const TwipsRect& wanted) {
  if (now != now_ || wanted != wanted_) requests_ = 0;
  now_ = now;
  wanted_ = wanted;
  if (now == wanted || requests_ == kMostRequests) return false;
  ++requests_;
  return true;
}

std::optional<int> SparePanelWidth(int outer_width, const std::array<int, kPanelCount>& widths) {
  const int spare = outer_width - std::accumulate(widths.begin(), widths.end(), 0) - kPanelMargin;
  return spare > 0 ? std::optional(spare) : std::nullopt;
}

LayoutResult ComputeLayout(const LayoutInput& in) {
  LayoutResult out;
  int needed = in.toolbar_height + in.bar_height + kNeededMargin;
  const int toolbar = in.toolbar_visible ? in.toolbar_height : 0;
  const int bar = in.bar_visible ? in.bar_height : 0;
  out.text_top = toolbar;
  if (in.minimised) return out;
  if (in.tabs_visible) {
    out.text_width = in.inner_width - kTabStripWidth;
    out.tabs_width = in.inner_width;
  } else {
    out.text_width = in.inner_width;
  }
  out.panel4_width = SparePanelWidth(in.outer_width, in.panel_widths);
  if (!in.toolbar_visible) needed -= in.toolbar_height;
  if (!in.bar_visible) needed -= in.bar_height;
  if (in.inner_height > 0 && in.inner_height < needed) out.grow_outer_height = needed - in.inner_height;
  out.text_height = in.inner_height - toolbar - bar + kTextOverlap;
  return out;
}

}  // namespace pelmar
