// Refuses what a page asks for beyond its side, before it gets as far as the gate, and all addresses within the engine
// itself. It belongs to a profile: what a page of the disk asked for stays refused, whatever is shown by then.
#pragma once

#include <QWebEngineUrlRequestInterceptor>
#include <functional>

namespace pelmar {

class NetRefusal : public QWebEngineUrlRequestInterceptor {
 public:
  // `on_withheld` is called for a part of a page that its reader would miss.
  NetRefusal(bool lets_to_net, std::function<void()> on_withheld, QObject* parent)
      : QWebEngineUrlRequestInterceptor(parent), lets_to_net_(lets_to_net), on_withheld_(std::move(on_withheld)) {}
  void interceptRequest(QWebEngineUrlRequestInfo& request) override;

 private:
  const bool lets_to_net_;
  const std::function<void()> on_withheld_;
};

}  // namespace pelmar
