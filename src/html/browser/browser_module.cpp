#include "html/browser/browser_module.h"

#include <QLoggingCategory>

namespace pelmar {

WebViewMaker* BrowserModule::Maker() {
  if (maker_ != nullptr) return maker_;
  // Hides the engine's warning on standard error that the engine isn't linked into the program.
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  const LoadedModule module = LoadModule(folders_, QStringLiteral("pelmar-browser.so"));
  QLoggingCategory::setFilterRules(QString());
  maker_ = qobject_cast<WebViewMaker*>(module.plugin);
  if (maker_ != nullptr) return maker_;
  if (module.path.isEmpty()) {
    problem_ = QStringLiteral("Interní browser není nainstalován.\r\nJe v balíčku pelmar-vex-browser.");
  } else {
    const QString other_version = QStringLiteral("Modul je z jiné verze programu.");
    problem_ =
        QStringLiteral("Interní browser nelze spustit.\r\n") + (module.error.isEmpty() ? other_version : module.error);
  }
  return nullptr;
}

}  // namespace pelmar
