#include "html/engine/web_engine_page.h"

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QWebEngineCertificateError>
#include <QWebEngineClientCertificateSelection>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineSettings>
#include <QWebEngineView>
#include <QtGlobal>
#include <utility>

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
#include <QWebEnginePermission>
#else
#include <QWebEngineQuotaRequest>
#endif

#include "html/browser/web_address.h"
#include "platform/qt/convert.h"

namespace pelmar {
namespace {

QString Title() { return QStringLiteral("Zpráva stránky"); }

// The engine asks this question through javaScriptConfirm().
constexpr char kLeaving[] = "Are you sure you want to leave this page? Changes that you made may not be saved.";
constexpr int kMostQuestions = 20;  // shown after one command that loads a page
// The limits of a page's question. The rest is cut off.
constexpr int kLongestQuestion = 2000;  // characters
constexpr int kMostLines = 25;
// Before a link of a local page leads to the net, a question shows the whole address in lines of kAddressLine
// characters. If the address has more than kLongestAsked characters, the link isn't opened.
constexpr qsizetype kLongestAsked = 1000, kAddressLine = 80;

// A frame of a page may also hold about: and blob: addresses.
bool MayBeFramed(const QUrl& address) {
  return MayBeShown(address) || address.scheme() == QLatin1String("about") || address.scheme() == QLatin1String("blob");
}

QString CutOff(QString question) {
  question.replace(QChar::LineSeparator, u'\n').replace(QChar::ParagraphSeparator, u'\n');
  const QString first = question.section(u'\n', 0, kMostLines - 1);
  return Shortened(first.size() < question.size() ? first + QStringLiteral("\n...") : first, kLongestQuestion);
}

}  // namespace

WebEnginePage::WebEnginePage(QWebEngineProfile* profile, PageSide side) : QWebEnginePage(profile), side_(side) {
  settings()->setDefaultTextEncoding(QStringLiteral("windows-1250"));
  settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
  settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
  // NetRefusal and NetGate block the net for pages on kDisk. The engine's own rule is off, since this rule would not
  // report what it blocks.
  settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
  settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, side != PageSide::kDiskWithNet);
  settings()->setAttribute(QWebEngineSettings::HyperlinkAuditingEnabled, false);
  // A page may ask for a new window only after an action of the person, such as a click. Otherwise a script could ask
  // without end.
  settings()->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
  settings()->setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, false);
  NameActions();
  RefuseRequests();
  connect(this, &QWebEnginePage::newWindowRequested, this,
          [this](QWebEngineNewWindowRequest& request) { OpenHere(request.requestedUrl()); });
}

// The engine itself refuses a link from a page of the net to a file, but doesn't check the address of load(). So this
// function and acceptNavigationRequest() refuse files to a page of the net.
void WebEnginePage::OpenHere(const QUrl& address) {
  if (IsOfTheNet(address) || (address.isLocalFile() && side_ != PageSide::kNet)) load(address);
}

// The scripts of a local page may read other local files and put their contents into an address. So a local page leads
// to an address on the net only after the person has seen the whole address and has agreed.
void WebEnginePage::AskToLeaveTheDisk(const QUrl& address) {
  QString shown = address.toString(QUrl::FullyEncoded);
  const qsizetype length = shown.size();
  if (length > kLongestAsked) {
    const QString refusal =
        QStringLiteral("Stránka odkazuje na internet. Adresa se neotevře, protože ji nelze ukázat celou: má %1 znaků.");
    AskInBox(Title(), refusal.arg(length), QMessageBox::Ok, QMessageBox::Ok);
    return;
  }
  // A message box doesn't break a long word, so the address is broken into lines here.
  for (qsizetype end = (length - 1) / kAddressLine * kAddressLine; end > 0; end -= kAddressLine)
    shown.insert(end, QLatin1Char('\n'));
  const QString question = QStringLiteral("Stránka odkazuje na internet. Otevřít adresu ?\n\n") + shown;
  if (AskInBox(QStringLiteral("Pelmar VEX"), question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No))
    on_leave(address);
}

void WebEnginePage::ReportUnshown(const QUrl& address) {
  const QString name = address.fileName(QUrl::FullyDecoded);
  const QString text = QStringLiteral("Tento soubor interní browser nezobrazuje:\n") +
                       Shortened(name.isEmpty() ? address.toDisplayString() : name, kAddressLine);
  QMetaObject::invokeMethod(
      this, [this, text] { AskInBox(QStringLiteral("Interní browser"), text, QMessageBox::Ok, QMessageBox::Ok); },
      Qt::QueuedConnection);
}

bool WebEnginePage::acceptNavigationRequest(const QUrl& address, NavigationType, bool is_main_frame) {
  if (!is_main_frame) return MayBeFramed(address);
  if (!MayBeShown(address) || (side_ == PageSide::kNet && address.isLocalFile())) return false;
  if (side_ != PageSide::kNet && IsOfTheNet(address)) {
    // The engine's call has to return before the question is shown.
    QMetaObject::invokeMethod(
        this, [this, address] { AskToLeaveTheDisk(address); }, Qt::QueuedConnection);
    return false;
  }
  if (side_ == PageSide::kDiskWithNet && std::exchange(loaded_, true)) {
    on_leave(address);
    return false;
  }
  on_coming();
  return true;
}

void WebEnginePage::NameActions() {
  const std::pair<WebAction, QString> names[] = {
      {Cut, QStringLiteral("Vy&jmout")},
      {Copy, QStringLiteral("&Kopírovat")},
      {Paste, QStringLiteral("V&ložit")},
      {SelectAll, QStringLiteral("Vybrat &vše")},
      {CopyLinkToClipboard, QStringLiteral("Kopírovat &adresu odkazu")},
  };
  for (const auto& [name, text] : names) action(name)->setText(text);
}

void WebEnginePage::RefuseRequests() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  connect(this, &QWebEnginePage::permissionRequested, this, [](QWebEnginePermission permission) { permission.deny(); });
#else
  connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl& origin, Feature feature) {
    setFeaturePermission(origin, feature, PermissionDeniedByUser);
  });
  connect(this, &QWebEnginePage::quotaRequested, this, [](QWebEngineQuotaRequest request) { request.reject(); });
#endif
  connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
          [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
  connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
          [](QWebEngineFileSystemAccessRequest request) { request.reject(); });
  connect(this, &QWebEnginePage::selectClientCertificate, this,
          [](QWebEngineClientCertificateSelection selection) { selection.selectNone(); });
  connect(this, &QWebEnginePage::certificateError, this,
          [](QWebEngineCertificateError error) { error.rejectCertificate(); });
}

void WebEnginePage::AnswerNo() {
  answers_no_ = true;
  if (question_ != nullptr) question_->reject();
}

bool WebEnginePage::MayAsk() const { return !answers_no_ && questions_ < kMostQuestions; }

bool WebEnginePage::Ask(QDialog& question) {
  QWidget* view = QWebEngineView::forPage(this);
  // If a page asked while a modal dialog of the program is open, the dialog could return only after the answer.
  if (QApplication::activeModalWidget() != nullptr) return false;
  if (!MayAsk() || question_ != nullptr || view == nullptr || !view->isVisible()) return false;
  ++questions_;
  // The question blocks only the window of the browser.
  question.setWindowModality(Qt::WindowModal);
  question_ = &question;
  const QPointer<WebEnginePage> self = this;
  const int result = question.exec();
  if (self == nullptr) return false;
  question_ = nullptr;
  if (on_answered) QMetaObject::invokeMethod(this, on_answered, Qt::QueuedConnection);
  return result == QDialog::Accepted || result == QMessageBox::Yes || result == QMessageBox::Ok;
}

bool WebEnginePage::AskInBox(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                             QMessageBox::StandardButton default_button) {
  QMessageBox box(QMessageBox::NoIcon, title, CutOff(text), buttons, QWebEngineView::forPage(this));
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(default_button);
  return Ask(box);
}

void WebEnginePage::javaScriptAlert(const QUrl&, const QString& text) {
  AskInBox(Title(), text, QMessageBox::Ok, QMessageBox::Ok);
}

bool WebEnginePage::javaScriptConfirm(const QUrl&, const QString& text) {
  const bool leaving = text == QCoreApplication::translate("QWebEnginePage", kLeaving);
  // A page that may not ask can't keep the person from leaving the page.
  if (leaving && !MayAsk()) return true;
  return AskInBox(Title(), leaving ? QStringLiteral("Opustit stránku ? Změny na ní možná nejsou uloženy.") : text,
                  QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
}

bool WebEnginePage::javaScriptPrompt(const QUrl&, const QString& text, const QString& initial, QString* result) {
  QInputDialog dialog(QWebEngineView::forPage(this));
  dialog.setWindowTitle(Title());
  dialog.setLabelText(CutOff(text));
  auto* label = dialog.findChild<QLabel*>();
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  dialog.setTextValue(initial);
  const bool accepted = Ask(dialog);
  *result = dialog.textValue();
  return accepted;
}

}  // namespace pelmar
