// The install folder, where the program keeps its settings, notes and rescue files.
#pragma once

#include <QString>
#include <string>

namespace pelmar {

struct ChosenFolder {
  std::string path;  // with "/" at the end
  // Set only if `path` is the third choice of FindInstallFolder: the path of the second choice, and the errno of the
  // attempt to create the second choice.
  std::string refused = {};
  int error = 0;
};

// First choice: `program_folder`, if it contains a file `pelmar.ini` or an empty file `portable`. Second choice:
// `pelmar-vex` in `data_home`, created for this user alone if missing. Third choice, if the second can't be created:
// `pelmar-vex` in a folder that usually lasts until log-out. If the third can't be created either: the second choice.
ChosenFolder FindInstallFolder(const QString& program_folder, const QString& data_home);

// The message about the third choice, in UTF-8. "" for the first and second choice.
std::string InstallFolderNotice(const ChosenFolder& folder);

}  // namespace pelmar
