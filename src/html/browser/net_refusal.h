// Refuses what the engine asks for while the gate to the net is shut, before it gets as far as the gate, and all
// addresses within the engine itself.
#pragma once

#include <QWebEngineUrlRequestInterceptor>
#include <functional>

#include "html/browser/net_gate.h"

namespace pelmar {

class NetRefusal : public QWebEngineUrlRequestInterceptor {
 public:
  explicit NetRefusal(const NetGate& gate) : gate_(gate) {}
  void interceptRequest(QWebEngineUrlRequestInfo& request) override;

  std::function<void()> on_withheld;  // a part of a page that its reader would miss

 private:
  const NetGate& gate_;
};

}  // namespace pelmar
