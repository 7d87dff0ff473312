// The plug-in object of the module pelmar-browser.
#include <QObject>

#include "html/engine/engine_start.h"
#include "html/engine/web_engine_view.h"

namespace pelmar {

class BrowserPlugin : public QObject, public WebViewMaker {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID PELMAR_WEB_VIEW_MAKER)
  Q_INTERFACES(pelmar::WebViewMaker)

 public:
  std::unique_ptr<WebView> Make(QWidget* parent) override {
    const EngineStart start;
    return std::make_unique<WebEngineView>(parent);
  }
};

}  // namespace pelmar

#include "module.moc"
