#include "shell/save_target.h"

namespace pelmar {

void SaveTarget::SetPath(const std::string& path) {
  path_ = path;
  if (HasExtension(path)) file_ = path;
  path_set.Notify();
  FilePart(path, 2);  // required: throws here for a name without an extension, so an open or a save ends at this point
}

}  // namespace pelmar
