// The path that fills the fields of the dialog Ulož. Each open and each save of a document sets this path. A switch to
// a tab sets the path if the tab's path has an extension.
#pragma once

#include <string>

#include "platform/paths.h"
#include "text/listeners.h"

namespace pelmar {

class SaveTarget {
 public:
  // Sets the path. A name without an extension leaves Name() and Extension() as they were, and throws RuntimeError.
  void SetPath(const std::string& path);

  // False if no path was set yet. Then the dialog keeps its initial fields.
  [[nodiscard]] bool HasPath() const { return !path_.empty(); }
  // False if the last SetPath threw. Then Name() and Extension() are still the old ones.
  [[nodiscard]] bool Complete() const { return file_ == path_; }

  // False if no path with an extension was set yet. Then Name() and Extension() are "".
  [[nodiscard]] bool HasName() const { return !file_.empty(); }

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] std::string Folder() const { return FilePart(path_, 1); }
  [[nodiscard]] std::string Name() const { return file_.empty() ? std::string() : FilePart(file_, 2); }
  [[nodiscard]] std::string Extension() const { return file_.empty() ? std::string() : FilePart(file_, 3); }

  // Notified by each SetPath, also by one that throws.
  Listeners<> path_set;

 private:
  std::string path_;
  std::string file_;  // the last path whose name has an extension
};

}  // namespace pelmar
