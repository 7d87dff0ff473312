#include "shell/save_target.h"

namespace pelmar {

void SaveTarget::Prime(const std::string& path) {
  path_ = path;
  if (HasExtension(path)) file_ = path;
  primed.Notify();
  FilePart(path, 2);  // required: this is where an open or a save of such a name breaks off
}

}  // namespace pelmar
