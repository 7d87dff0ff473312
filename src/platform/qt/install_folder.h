// Where the program keeps its settings, notes and recovery files.
#pragma once

#include <QString>

namespace pelmar {

// The program's own folder when a `pelmar.ini` or an empty file `portable` lies in it, otherwise the folder
// `pelmar-vex` of the user's data, which is made (for the user alone) where it is missing. With "/" at the end.
// A folder that can't be made is returned all the same: the first file step in it reports the error.
QString FindInstallFolder(const QString& program_folder, const QString& data_home);

}  // namespace pelmar
