// The install folder, where the program keeps its settings, notes and rescue files.
#pragma once

#include <QString>
#include <string>

namespace pelmar {

struct ChosenFolder {
  std::string path;  // with "/" at the end
  // Set if `path` is the third choice of FindInstallFolder: the path of the second choice, and why creating it failed.
  std::string refused = {};
  int error = 0;
};

// First choice: the program's folder, if this folder contains `pelmar.ini` or an empty file `portable`. Second choice:
// the folder `pelmar-vex` in the user's data, which is created if missing and which only the user can enter. Third
// choice, if the creation fails: a folder that the system removes when the user logs out.
ChosenFolder FindInstallFolder(const QString& program_folder, const QString& data_home);

// The message about the third choice, in UTF-8. "" for the first and second choice.
std::string InstallFolderNotice(const ChosenFolder& folder);

}  // namespace pelmar
