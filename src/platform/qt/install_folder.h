// The install folder, where the program keeps its settings, notes and rescue files.
#pragma once

#include <QString>
#include <string>

namespace pelmar {

// Returns `program_folder` if it contains a file `pelmar.ini` or an empty file `portable`. Otherwise returns the folder
// `pelmar-vex` in `data_home`, and creates this folder for this user alone if it is missing. If it can't be created,
// the first write into it reports the error. The path ends with "/".
std::string FindInstallFolder(const QString& program_folder, const QString& data_home);

}  // namespace pelmar
