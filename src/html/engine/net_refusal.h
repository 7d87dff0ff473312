// Blocks requests to the net if the profile doesn't allow the net. For all profiles, blocks addresses that no page may
// use, for example those of the engine's own pages. Each profile has its own NetRefusal, so a late request is treated
// by the rule of the page that sent it, even if a page of another profile is already shown.
#pragma once

#include <QWebEngineUrlRequestInterceptor>
#include <functional>

namespace pelmar {

class NetRefusal : public QWebEngineUrlRequestInterceptor {
 public:
  // `on_withheld` is called for each blocked request to the net, if a reader of the page would miss the requested part.
  NetRefusal(bool allows_net, std::function<void()> on_withheld, QObject* parent)
      : QWebEngineUrlRequestInterceptor(parent), allows_net_(allows_net), on_withheld_(std::move(on_withheld)) {}
  void interceptRequest(QWebEngineUrlRequestInfo& request) override;

 private:
  const bool allows_net_;
  const std::function<void()> on_withheld_;
};

}  // namespace pelmar
