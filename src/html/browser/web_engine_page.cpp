#include "html/browser/web_engine_page.h"

#include <QAction>
#include <QInputDialog>
#include <QMessageBox>
#include <QWebEngineCertificateError>
#include <QWebEngineClientCertificateSelection>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineSettings>
#include <QWebEngineView>
#include <utility>

namespace pelmar {
namespace {

QString Title() { return QStringLiteral("Zpráva stránky"); }

constexpr int kLongestShown = 300;  // characters of an address in a question

bool IsOfTheNet(const QUrl& address) {
  return address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https");
}

QMessageBox::StandardButton Ask(QWebEnginePage* page, const QString& text, QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton default_button = QMessageBox::Ok) {
  QMessageBox box(QMessageBox::NoIcon, Title(), text, buttons, QWebEngineView::forPage(page));
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(default_button);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

WebEnginePage::WebEnginePage(QWebEngineProfile* profile, QObject* parent) : QWebEnginePage(profile, parent) {
  settings()->setDefaultTextEncoding(QStringLiteral("windows-1250"));
  settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
  settings()->setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, false);
  NameActions();
  RefuseRequests();
  connect(this, &QWebEnginePage::newWindowRequested, this,
          [this](QWebEngineNewWindowRequest& request) { OpenHere(request.requestedUrl()); });
}

// What the program loads isn't held back as what the page loads is, so this is for pages that may go there.
void WebEnginePage::OpenHere(const QUrl& address) {
  if (LeavesTheDisk(address)) return AskToLeaveTheDisk(address);
  if (IsOfTheNet(address) || (address.isLocalFile() && url().isLocalFile())) load(address);
}

bool WebEnginePage::LeavesTheDisk(const QUrl& address) const { return url().isLocalFile() && IsOfTheNet(address); }

// The scripts of a local page may read other local files, and an address can carry them away. So such a page reaches
// the net only where the person has seen the address.
void WebEnginePage::AskToLeaveTheDisk(const QUrl& address) {
  const auto ask = [this, address] {
    const QString question = QStringLiteral("Stránka odkazuje na internet. Otevřít adresu ?\n\n%1");
    const QString shown = address.toString(QUrl::FullyEncoded);
    const bool all = shown.size() <= kLongestShown;
    const QString text = question.arg(all ? shown : shown.left(kLongestShown) + QStringLiteral(" ..."));
    if (Ask(this, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes) load(address);
  };
  // Not within the engine's own call.
  QMetaObject::invokeMethod(this, ask, Qt::QueuedConnection);
}

bool WebEnginePage::acceptNavigationRequest(const QUrl& address, NavigationType type, bool is_main_frame) {
  const bool by_page = type == NavigationTypeLinkClicked || type == NavigationTypeOther;
  if (!is_main_frame || !by_page || !LeavesTheDisk(address)) return true;
  AskToLeaveTheDisk(address);
  return false;
}

void WebEnginePage::NameActions() {
  const std::pair<WebAction, QString> names[] = {
      {Back, QStringLiteral("&Zpět")},
      {Forward, QStringLiteral("&Vpřed")},
      {Reload, QStringLiteral("&Obnovit")},
      {Cut, QStringLiteral("Vy&jmout")},
      {Copy, QStringLiteral("&Kopírovat")},
      {Paste, QStringLiteral("V&ložit")},
      {SelectAll, QStringLiteral("Vybrat &vše")},
      {CopyLinkToClipboard, QStringLiteral("Kopírovat &adresu odkazu")},
  };
  for (const auto& [name, text] : names) action(name)->setText(text);
}

void WebEnginePage::RefuseRequests() {
  connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl& origin, Feature feature) {
    setFeaturePermission(origin, feature, PermissionDeniedByUser);
  });
  connect(this, &QWebEnginePage::quotaRequested, this, [](QWebEngineQuotaRequest request) { request.reject(); });
  connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
          [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
  connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
          [](QWebEngineFileSystemAccessRequest request) { request.reject(); });
  connect(this, &QWebEnginePage::fullScreenRequested, this,
          [](QWebEngineFullScreenRequest request) { request.reject(); });
  connect(this, &QWebEnginePage::selectClientCertificate, this,
          [](QWebEngineClientCertificateSelection selection) { selection.selectNone(); });
  connect(this, &QWebEnginePage::certificateError, this,
          [](QWebEngineCertificateError error) { error.rejectCertificate(); });
}

void WebEnginePage::javaScriptAlert(const QUrl&, const QString& text) { Ask(this, text, QMessageBox::Ok); }

bool WebEnginePage::javaScriptConfirm(const QUrl&, const QString& text) {
  return Ask(this, text, QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

bool WebEnginePage::javaScriptPrompt(const QUrl&, const QString& text, const QString& initial, QString* result) {
  bool accepted = false;
  *result = QInputDialog::getText(QWebEngineView::forPage(this), Title(), text, QLineEdit::Normal, initial, &accepted);
  return accepted;
}

}  // namespace pelmar
