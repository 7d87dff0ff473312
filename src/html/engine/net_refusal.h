// Blocks requests to the net if the profile doesn't allow the net. Blocks the engine's own addresses for all profiles.
// Each profile has its own NetRefusal, so a local page's request is blocked even if another page is already shown.
#pragma once

#include <QWebEngineUrlRequestInterceptor>
#include <functional>

namespace pelmar {

class NetRefusal : public QWebEngineUrlRequestInterceptor {
 public:
  // `on_withheld` is called for each refused part that a reader of the page would miss.
  NetRefusal(bool allows_net, std::function<void()> on_withheld, QObject* parent)
      : QWebEngineUrlRequestInterceptor(parent), allows_net_(allows_net), on_withheld_(std::move(on_withheld)) {}
  void interceptRequest(QWebEngineUrlRequestInfo& request) override;

 private:
  const bool allows_net_;
  const std::function<void()> on_withheld_;
};

}  // namespace pelmar
