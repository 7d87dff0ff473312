// Prints the places of windows in a failed comparison.
#pragma once

#include <ostream>

#include "platform/twips.h"

namespace pelmar {

inline void PrintTo(const TwipsRect& place, std::ostream* out) {
  *out << place.width << 'x' << place.height << " at " << place.left << ',' << place.top;
}

}  // namespace pelmar
