// What the dialog Ulož was last primed with: each open, each save and each switch to a tab with a path leaves its file
// here, so that the dialog needn't exist for it. Paths are UTF-8.
#pragma once

#include <functional>
#include <string>

namespace pelmar {

struct SaveTarget {
  std::string folder;     // Drive1 and Dir1
  std::string name;       // Text1, without extension
  std::string extension;  // Text2, without the dot
  std::string label;      // Label1, the whole path
  bool complete = false;  // the last priming reached its end; otherwise only the folder is of its path
  bool primed = false;    // false: the dialog keeps its own initial fields

  // Told after each priming, complete or broken off.
  std::function<void()> on_primed;

  // Fills the fields from the path in their order. Throws RuntimeError for a name without a full stop, after the fields
  // before the name were set.
  void Prime(const std::string& path);
};

}  // namespace pelmar
