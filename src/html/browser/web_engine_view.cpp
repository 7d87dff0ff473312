#include "html/browser/web_engine_view.h"

#include <QMenu>
#include <QWebEngineContextMenuRequest>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>

namespace pelmar {
namespace {

// A command that hasn't begun to load by then loads nothing, as a step to another place of the same page.
constexpr int kLongestExpectation = 1000;  // ms

}  // namespace

WebEngineView::WebEngineView(QWidget* parent)
    : profile_(std::make_unique<QWebEngineProfile>()), view_(std::make_unique<QWebEngineView>(parent)) {
  profile_->setHttpAcceptLanguage(QStringLiteral("cs"));
  connect(profile_.get(), &QWebEngineProfile::downloadRequested, this,
          [](QWebEngineDownloadRequest* download) { download->cancel(); });
  page_ = new WebEnginePage(profile_.get(), view_.get());
  view_->setPage(page_);
  view_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(view_.get(), &QWidget::customContextMenuRequested, this, &WebEngineView::ShowMenu);
  expecting_.setSingleShot(true);
  expecting_.setInterval(kLongestExpectation);
  ConnectPage();
}

// The page goes with the view, and both before their profile.
WebEngineView::~WebEngineView() { page_->disconnect(this); }

void WebEngineView::ConnectPage() {
  connect(page_, &QWebEnginePage::loadStarted, this, &WebEngineView::TellChange);
  connect(page_, &QWebEnginePage::titleChanged, this, &WebEngineView::TellChange);
  connect(page_, &QWebEnginePage::loadProgress, this, [this](int percent) {
    if (on_progress) on_progress(percent, 100);
  });
  connect(page_, &QWebEnginePage::loadFinished, this, &WebEngineView::Finished);
  // A page whose process died is not loading any more.
  connect(page_, &QWebEnginePage::renderProcessTerminated, this, &WebEngineView::Finished);
}

void WebEngineView::Expect() { expecting_.start(); }

void WebEngineView::TellChange() {
  if (on_change) on_change();
}

void WebEngineView::Finished() {
  expecting_.stop();
  if (on_progress) on_progress(0, 0);
  if (on_finished) on_finished();
}

void WebEngineView::Load(const QUrl& address) {
  if (!address.isValid()) return;
  Expect();
  page_->load(address);
}

void WebEngineView::Back() {
  if (!page_->history()->canGoBack()) return;
  Expect();
  page_->triggerAction(QWebEnginePage::Back);
}

void WebEngineView::Forward() {
  if (!page_->history()->canGoForward()) return;
  Expect();
  page_->triggerAction(QWebEnginePage::Forward);
}

void WebEngineView::Refresh() {
  if (!page_->url().isValid()) return;
  Expect();
  page_->triggerAction(QWebEnginePage::Reload);
}

void WebEngineView::Stop() {
  expecting_.stop();
  page_->triggerAction(QWebEnginePage::Stop);
}

bool WebEngineView::Busy() const { return expecting_.isActive() || page_->isLoading(); }

QString WebEngineView::LocationName() const {
  const QString title = page_->title();
  // Where a page has no title, the engine makes one of the file's name, and encodes some of it.
  const QString name = page_->url().fileName(QUrl::FullyDecoded);
  return QUrl::fromPercentEncoding(title.toUtf8()) == name ? name : title;
}

QUrl WebEngineView::LocationAddress() const { return page_->url(); }

void WebEngineView::ReadText(std::function<void(const QString& text)> then) { page_->toPlainText(then); }

void WebEngineView::ShowMenu(const QPoint& at) {
  auto* menu = new QMenu(view_.get());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const auto action : {QWebEnginePage::Back, QWebEnginePage::Forward, QWebEnginePage::Reload})
    menu->addAction(page_->action(action));
  menu->addSeparator();
  const QWebEngineContextMenuRequest* request = view_->lastContextMenuRequest();
  if (request != nullptr && request->linkUrl().isValid())
    menu->addAction(page_->action(QWebEnginePage::CopyLinkToClipboard));
  for (const auto action :
       {QWebEnginePage::Cut, QWebEnginePage::Copy, QWebEnginePage::Paste, QWebEnginePage::SelectAll})
    menu->addAction(page_->action(action));
  menu->popup(view_->mapToGlobal(at));
}

}  // namespace pelmar
