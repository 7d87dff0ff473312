#include "shell/save_target.h"

#include "platform/paths.h"

namespace pelmar {

void SaveTarget::Prime(const std::string& path) {
  struct Teller {
    SaveTarget& target;
    ~Teller() {
      if (target.on_primed) target.on_primed();
    }
  } teller{*this};
  primed = true;
  complete = false;
  folder = FilePart(path, 1);
  name = FilePart(path, 2);
  extension = FilePart(path, 3);
  label = path;
  complete = true;
}

}  // namespace pelmar
