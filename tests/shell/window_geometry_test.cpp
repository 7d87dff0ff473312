#include "shell/window_geometry.h"

#include <gtest/gtest.h>

#include "platform/twips.h"

namespace pelmar {
namespace {

TEST(Snap, PullsWindowsToTheEdges) {
  const struct {
    const char* what;
    TwipsRect before, after;
  } cases[] = {
      {"nearer than the distance", {239, 239, 9000, 6000}, {0, 0, 9000, 6000}},
      {"as far as the distance", {240, 240, 9000, 6000}, {240, 240, 9000, 6000}},
      {"right and bottom", {19700, 10000, 9000, 6000}, {19800, 10200, 9000, 6000}},
      {"off the screen", {-3000, -200, 9000, 6000}, {0, 0, 9000, 6000}},
      {"beyond the right edge", {28000, 5000, 9000, 6000}, {19800, 5000, 9000, 6000}},
      {"almost as wide as the screen", {100, 5000, 28600, 6000}, {0, 5000, 28800, 6000}},
      {"almost as high", {5000, 100, 9000, 16000}, {5000, 0, 9000, 16200}},
  };
  for (const auto& c : cases) EXPECT_EQ(Snap(c.before, 240, 28800, 16200), c.after) << c.what;
}

TEST(PlaceRequests, RestWhereTheyAreInVain) {
  const TwipsRect here = {100, 100, 9000, 6000}, edge = {0, 0, 9000, 6000};
  PlaceRequests requests;
  int asked = 0;
  while (asked < 1000 && requests.Worthwhile(here, edge)) ++asked;
  EXPECT_EQ(asked, 20);
  EXPECT_TRUE(requests.Worthwhile({90, 100, 9000, 6000}, edge));  // the person moved it
  EXPECT_TRUE(requests.Worthwhile(here, edge));
  EXPECT_TRUE(requests.Worthwhile(here, {0, 100, 9000, 6000}));
}

// required: the sum counts panel 4 itself, so two widths take turns
TEST(SparePanelWidth, AlternatesOnceBothWidthsAreAboveZero) {
  std::array<int, kPanelCount> widths = {1500, 1500, 1500, 0, 500, 500, 500};
  EXPECT_EQ(SparePanelWidth(12420, widths), 6000);
  widths[3] = 6000;
  EXPECT_EQ(SparePanelWidth(12420, widths), std::nullopt);
  EXPECT_EQ(SparePanelWidth(12520, widths), 100);
  widths[3] = 100;
  EXPECT_EQ(SparePanelWidth(12520, widths), 6000);
}

// Top, height and width of the text, the widths of the tabs and of panel 4, by how much the window has to grow.
std::string Laid(const LayoutInput& in) {
  const LayoutResult out = ComputeLayout(in);
  std::string laid = std::to_string(out.text_top);
  for (const std::optional<int>& part : {out.text_height, out.text_width, out.tabs_width, out.panel4_width})
    laid += part ? ' ' + std::to_string(*part) : " -";
  return laid + ' ' + std::to_string(out.grow_outer_height);
}

TEST(Layout, FollowsTheBarsThatAreVisibleAndKeepsRoomForThem) {
  LayoutInput in;
  in.outer_width = 12000;
  in.inner_width = 11900;
  in.inner_height = 8000;
  in.toolbar_height = 500;
  in.bar_height = 300;
  in.panel_widths = {1000, 1000, 1000, 0, 500, 500, 500};
  EXPECT_EQ(Laid(in), "500 7210 11540 11900 7080 0");
  in.inner_height = 1069;
  EXPECT_EQ(Laid(in), "500 279 11540 11900 7080 1");
  in.bar_visible = false;
  EXPECT_EQ(Laid(in), "500 579 11540 11900 7080 0");
  in.inner_height = 0;
  EXPECT_EQ(Laid(in), "500 -490 11540 11900 7080 0");
  in.toolbar_visible = in.tabs_visible = false;
  in.inner_height = 269;
  EXPECT_EQ(Laid(in), "0 279 11900 - 7080 1");
  in.minimised = true;
  EXPECT_EQ(Laid(in), "0 - - - - 0");
}

}  // namespace
}  // namespace pelmar
