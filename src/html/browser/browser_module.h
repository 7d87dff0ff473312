// Loads the module pelmar-browser at the first use of the internal browser. The module is a separate shared library,
// since it needs the large web engine.
#pragma once

#include <QString>
#include <QStringList>

#include "html/browser/web_view.h"
#include "platform/qt/module.h"

namespace pelmar {

class BrowserModule {
 public:
  explicit BrowserModule(QStringList folders = ModuleFolders()) : folders_(std::move(folders)) {}

  // Loads the module at the first call. Null if the module is missing or broken: Problem() then has the reason, and the
  // next call tries again.
  WebViewMaker* Maker();

  // The reason, as a message for the person.
  [[nodiscard]] const QString& Problem() const { return problem_; }

 private:
  QStringList folders_;
  WebViewMaker* maker_ = nullptr;
  QString problem_;
};

}  // namespace pelmar
