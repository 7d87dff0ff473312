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

QMessageBox::StandardButton Ask(QWebEnginePage* page, const QString& text, QMessageBox::StandardButtons buttons) {
  QMessageBox box(QMessageBox::NoIcon, Title(), text, buttons, QWebEngineView::forPage(page));
  box.setTextFormat(Qt::PlainText);
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
          [this](QWebEngineNewWindowRequest& request) { load(request.requestedUrl()); });
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
