// Where the program keeps its settings, notes and recovery files.
#pragma once

#include <QString>
#include <string>

namespace pelmar {

struct ChosenFolder {
  std::string path;  // with "/" at the end
  // Where the folder of the user's data can't be made: that one, and the errno.
  std::string refused = {};
  int error = 0;
};

// The program's own folder when a `pelmar.ini` or an empty file `portable` lies in it, otherwise the folder
// `pelmar-vex` of the user's data, which is made (for the user alone) where it is missing. Where that fails, a folder
// that the system removes when the user logs out.
ChosenFolder FindInstallFolder(const QString& program_folder, const QString& data_home);

// What a person is told of the third case, UTF-8; "" in the others.
std::string InstallFolderNotice(const ChosenFolder& folder);

}  // namespace pelmar
