// The nine places of the layout picker Pos: a grid of three columns and three rows over the screen.
#pragma once

#include <string_view>

#include "platform/twips.h"

namespace pelmar {

struct ScreenPlace {
  std::string_view name;  // UTF-8
  TwipsRect place;
};

// Row and column from 1 to 3. The middle cell covers the screen without maximising.
ScreenPlace PlaceOfCell(int row, int column, const TwipsRect& screen);

}  // namespace pelmar
