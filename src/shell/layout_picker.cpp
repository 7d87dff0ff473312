#include "shell/layout_picker.h"

namespace pelmar {
namespace {

constexpr std::string_view kNames[3][3] = {
    {"Vlevo nahoře", "Nahoře", "Vpravo nahoře"},
    {"Vlevo", "Maximalizace", "Vpravo"},
    {"Vlevo dole", "Dole", "Vpravo dole"},
};

// In each direction, cells 1 and 3 cover half of the screen, and cell 2 covers the whole screen.
constexpr int Length(int cell, int whole) { return cell == 2 ? whole : whole / 2; }
constexpr int Start(int cell, int whole) { return cell == 3 ? whole / 2 : 0; }

}  // namespace

ScreenPlace PlaceOfCell(int row, int column, const TwipsRect& screen) {
  return {kNames[row - 1][column - 1],
          {screen.left + Start(column, screen.width), screen.top + Start(row, screen.height),
           Length(column, screen.width), Length(row, screen.height)}};
}

}  // namespace pelmar
