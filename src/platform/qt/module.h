// The modules of the program: plug-ins with large libraries that most runs don't need, loaded at their first use.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace pelmar {

// The folders that may contain modules: the program's folder in a build tree, and the module folder of an installation.
QStringList ModuleFolders();

struct LoadedModule {
  QObject* plugin = nullptr;  // lives until the program ends; null if the module was not loaded
  QString path;               // "" if the module was not found
  QString error;              // why loading failed, in Czech; "" if the module was loaded or not found
};

// Loads the module from the first folder that contains the file.
LoadedModule LoadModule(const QStringList& folders, const QString& file_name);

}  // namespace pelmar
