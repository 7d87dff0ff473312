// What the dialog Ulož was last primed with: each open, each save and each switch to a tab with a path leaves its path
// here, so that the dialog needn't exist for it. Paths are UTF-8.
#pragma once

#include <string>

#include "platform/paths.h"
#include "text/listeners.h"

namespace pelmar {

class SaveTarget {
 public:
  // Throws RuntimeError for a name without a full stop, of which only the folder is taken.
  void Prime(const std::string& path);

  // False: the dialog keeps its own initial fields.
  [[nodiscard]] bool Primed() const { return !path_.empty(); }
  // False: the last priming broke off, and name and extension are still those of the one before it.
  [[nodiscard]] bool Complete() const { return file_ == path_; }

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] std::string Folder() const { return FilePart(path_, 1); }
  [[nodiscard]] std::string Name() const { return file_.empty() ? std::string() : FilePart(file_, 2); }
  [[nodiscard]] std::string Extension() const { return file_.empty() ? std::string() : FilePart(file_, 3); }

  // Told after each priming, also after one that breaks off.
  Listeners<> primed;

 private:
  std::string path_;
  std::string file_;  // the last path whose name could be taken
};

}  // namespace pelmar
