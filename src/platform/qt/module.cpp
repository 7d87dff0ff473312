#include "platform/qt/module.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPluginLoader>
#include <QRegularExpression>

namespace pelmar {
namespace {

// The reason in Czech for an error message of the loader. Names the missing library, if there is one.
QString Reason(const QString& path, const QString& words) {
  static const QRegularExpression missing(QStringLiteral(R"(\(([^/():\s]+\.so[.\d]*): )"));
  if (const auto match = missing.match(words); match.hasMatch())
    return QStringLiteral("Chybí knihovna %1").arg(match.captured(1));
  return QStringLiteral("Soubor %1 je poškozen nebo z jiné verze programu").arg(path);
}

}  // namespace

QStringList ModuleFolders() {
  const QString program = QCoreApplication::applicationDirPath();
  return {program, program + QStringLiteral("/../" PELMAR_MODULE_FOLDER)};
}

LoadedModule LoadModule(const QStringList& folders, const QString& file_name) {
  for (const QString& folder : folders) {
    const QString path = folder + QLatin1Char('/') + file_name;
    if (!QFileInfo::exists(path)) continue;
    QPluginLoader loader(path);
    QObject* plugin = loader.instance();
    return {
        .plugin = plugin, .path = path, .error = plugin == nullptr ? Reason(path, loader.errorString()) : QString()};
  }
  return {};
}

}  // namespace pelmar
