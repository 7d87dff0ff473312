#include "platform/qt/module.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPluginLoader>

namespace pelmar {

QStringList ModuleFolders() {
  const QString program = QCoreApplication::applicationDirPath();
  return {program, program + QStringLiteral("/../" PELMAR_MODULE_FOLDER)};
}

LoadedModule LoadModule(const QStringList& folders, const QString& file_name) {
  for (const QString& folder : folders) {
    const QString path = folder + QLatin1Char('/') + file_name;
    if (!QFileInfo::exists(path)) continue;
    QPluginLoader loader(path);
    if (QObject* const plugin = loader.instance()) return {.plugin = plugin, .path = path, .error = {}};
    return {.path = path, .error = QStringLiteral("Soubor %1 je poškozen nebo z jiné verze programu").arg(path)};
  }
  return {};
}

}  // namespace pelmar
