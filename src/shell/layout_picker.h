// The nine places that the layout picker Pos offers, one for each cell of a grid with three rows and three columns.
#pragma once

#include <string_view>

#include "platform/twips.h"

namespace pelmar {

struct ScreenPlace {
  std::string_view name;  // UTF-8
  TwipsRect place;
};

// Row and column count from 1 to 3. The middle cell covers the whole screen, but doesn't maximise the window.
ScreenPlace PlaceOfCell(int row, int column, const TwipsRect& screen);

}  // namespace pelmar
