// The install folder, where the program keeps its settings, notes and rescue files.
#pragma once

#include <QString>
#include <string>

namespace pelmar {

struct ChosenFolder {
  std::string path;  // with "/" at the end
  // Set if the folder in the user's data can't be created: its path and the errno.
  std::string refused = {};
  int error = 0;
};

// The folder of the program if it contains `pelmar.ini` or an empty file `portable`. Otherwise the folder `pelmar-vex`
// in the user's data, which is created if missing; only the user can enter this folder. If the creation fails, a folder
// that the system removes when the user logs out.
ChosenFolder FindInstallFolder(const QString& program_folder, const QString& data_home);

// The message about the third case, in UTF-8. "" in the other cases.
std::string InstallFolderNotice(const ChosenFolder& folder);

}  // namespace pelmar
