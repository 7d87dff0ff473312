#include "html/windows/browser_module.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QPluginLoader>

namespace pelmar {
namespace {

constexpr QLatin1String kFileName("/pelmar-browser.so");

}  // namespace

QStringList BrowserModule::UsualFolders() {
  const QString program = QCoreApplication::applicationDirPath();
  return {program, program + QStringLiteral("/../" PELMAR_MODULE_FOLDER)};
}

WebViewMaker* BrowserModule::Maker() {
  if (maker_ != nullptr) return maker_;
  problem_ = QStringLiteral("Interní browser není nainstalován.\r\nJe v balíčku pelmar-vex-browser.");
  for (const QString& folder : std::as_const(folders_)) {
    if (!QFileInfo::exists(folder + kFileName)) continue;
    QPluginLoader loader(folder + kFileName);
    // The engine would rather be linked into the program, and says so on its standard error.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    QObject* plugin = loader.instance();
    QLoggingCategory::setFilterRules(QString());
    maker_ = qobject_cast<WebViewMaker*>(plugin);
    if (maker_ != nullptr) return maker_;
    problem_ = QStringLiteral("Interní browser nelze spustit.\r\n") +
               (plugin == nullptr ? loader.errorString() : QStringLiteral("Modul je z jiné verze programu."));
  }
  return nullptr;
}

}  // namespace pelmar
