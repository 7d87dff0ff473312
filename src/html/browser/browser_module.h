// The door to the module pelmar-browser, a shared library of its own, because the web engine in it is large: the
// program starts without it and loads it at the first use of the internal browser.
#pragma once

#include <QString>
#include <QStringList>

#include "html/browser/web_view.h"
#include "platform/qt/module.h"

namespace pelmar {

class BrowserModule {
 public:
  explicit BrowserModule(QStringList folders = ModuleFolders()) : folders_(std::move(folders)) {}

  // Loads the module where it wasn't yet. Nothing where it isn't installed or doesn't work, as Problem() then tells;
  // the next call tries again.
  WebViewMaker* Maker();

  // A sentence for the person.
  [[nodiscard]] const QString& Problem() const { return problem_; }

 private:
  QStringList folders_;
  WebViewMaker* maker_ = nullptr;
  QString problem_;
};

}  // namespace pelmar
