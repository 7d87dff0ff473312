// The path that fills the fields of the dialog Ulož. Each open, each save and each switch to a tab with a path sets
// this path, so the dialog needn't exist yet. Paths are UTF-8.
#pragma once

#include <string>

#include "platform/paths.h"
#include "text/listeners.h"

namespace pelmar {

class SaveTarget {
 public:
  // Sets the path. A name without an extension leaves Name() and Extension() as they were, and throws RuntimeError.
  void SetPath(const std::string& path);

  // False if no path was set yet; the dialog then keeps its initial fields.
  [[nodiscard]] bool HasPath() const { return !path_.empty(); }
  // False if the last SetPath threw; name and extension are then still the old ones.
  [[nodiscard]] bool Complete() const { return file_ == path_; }

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] std::string Folder() const { return FilePart(path_, 1); }
  [[nodiscard]] std::string Name() const { return file_.empty() ? std::string() : FilePart(file_, 2); }
  [[nodiscard]] std::string Extension() const { return file_.empty() ? std::string() : FilePart(file_, 3); }

  // Notified after each SetPath, also after one that throws.
  Listeners<> path_set;

 private:
  std::string path_;
  std::string file_;  // the last path whose name has an extension
};

}  // namespace pelmar
