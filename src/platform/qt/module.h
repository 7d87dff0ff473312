// The program's own modules: plug-ins that are loaded at their first use, because what they need is large and most runs
// do without it.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace pelmar {

// Where modules may lie: beside the program in a build tree, below its prefix where it is installed.
QStringList ModuleFolders();

struct LoadedModule {
  QObject* plugin = nullptr;  // lives as long as the program; nothing where the module couldn't be loaded
  QString path;               // "" where none of the folders has the module
  QString error;              // why, in Czech; "" where it was loaded or isn't there
};

// Loads the file out of the first folder that has it.
LoadedModule LoadModule(const QStringList& folders, const QString& file_name);

}  // namespace pelmar
