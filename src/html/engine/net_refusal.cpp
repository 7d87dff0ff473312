#include "html/engine/net_refusal.h"

#include "html/browser/web_address.h"

namespace pelmar {
namespace {

bool ReachesTheNet(const QString& scheme) {
  return scheme.startsWith(QLatin1String("http")) || scheme == QLatin1String("ws") || scheme == QLatin1String("wss");
}

bool IsMissed(QWebEngineUrlRequestInfo::ResourceType type) {
  switch (type) {
    case QWebEngineUrlRequestInfo::ResourceTypeMainFrame:
    case QWebEngineUrlRequestInfo::ResourceTypePrefetch:
    case QWebEngineUrlRequestInfo::ResourceTypeFavicon:
    case QWebEngineUrlRequestInfo::ResourceTypePing:
    case QWebEngineUrlRequestInfo::ResourceTypeCspReport:
      return false;
    default:
      return true;
  }
}

}  // namespace

void NetRefusal::interceptRequest(QWebEngineUrlRequestInfo& request) {
  const QString scheme = request.requestUrl().scheme();
  if (ReachesTheNet(scheme)) {
    if (allows_net_) return;
    request.block(true);
    if (IsMissed(request.resourceType())) on_withheld_();
  } else if (!MayBeShown(request.requestUrl()) && scheme != QLatin1String("blob") && scheme != QLatin1String("about")) {
    request.block(true);
  }
}

}  // namespace pelmar
