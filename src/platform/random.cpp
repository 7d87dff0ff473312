#include "platform/random.h"

#include "platform/platform.h"

namespace pelmar {

Draw DrawFrom(Platform& platform) {
  return [&platform] { return platform.Random(); };
}

}  // namespace pelmar
