#include "html/browser/web_engine_view.h"

#include <csignal>

#include <QMenu>
#include <QWebEngineContextMenuRequest>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEngineScript>
#include <utility>

#include "html/windows/web_address.h"

namespace pelmar {
namespace {

// A command that hasn't begun to load by then loads nothing, as a step to another place of the same page.
constexpr int kLongestExpectation = 1000;  // ms
constexpr int kLongestSilence = 3000;      // ms, of a page that is to answer

}  // namespace

WebEngineView::WebEngineView(std::unique_ptr<NetGate> gate, QWidget* parent)
    : gate_(std::move(gate)),
      profile_(std::make_unique<QWebEngineProfile>()),
      view_(std::make_unique<QWebEngineView>(parent)) {
  profile_->setHttpAcceptLanguage(QStringLiteral("cs"));
  connect(profile_.get(), &QWebEngineProfile::downloadRequested, this,
          [](QWebEngineDownloadRequest* download) { download->cancel(); });
  profile_->setUrlRequestInterceptor(&refusal_);
  page_ = new WebEnginePage(profile_.get(), *gate_, view_.get());
  view_->setPage(page_);
  view_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(view_.get(), &QWidget::customContextMenuRequested, this, &WebEngineView::ShowMenu);
  expecting_.setSingleShot(true);
  expecting_.setInterval(kLongestExpectation);
  unanswered_.setSingleShot(true);
  unanswered_.setInterval(kLongestSilence);
  connect(&unanswered_, &QTimer::timeout, this, [this] {
    if (page_->renderProcessPid() == probed_) EndProcess(std::exchange(held_up_, {}));
  });
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
  // A link within the page loads nothing.
  connect(page_, &QWebEnginePage::urlChanged, this, [this] {
    if (!Busy() && on_finished) on_finished();
  });
  connect(page_, &QWebEnginePage::linkHovered, this, [this](const QString& address) {
    if (on_link) on_link(address);
  });
  connect(page_, &QWebEnginePage::renderProcessTerminated, this, &WebEngineView::ProcessEnded);
  page_->on_leave = [this](const QUrl& address) { Load(address); };
  // A page that asks isn't stuck, however long the person thinks.
  page_->on_asking = [this] {
    unanswered_.stop();
    held_up_ = {};
  };
  page_->on_answered = [this] {
    if (const auto step = std::exchange(after_question_, {})) step();
  };
  refusal_.on_withheld = [this] {
    if (on_withheld) on_withheld(true);
  };
  page_->on_coming = [this] {
    if (on_withheld) on_withheld(false);
  };
}

void WebEngineView::Go(bool to_net, std::function<void()> step) {
  const bool was_asking = page_->Asking();
  page_->Silence();
  // The question is a loop of events within the engine's own call, which has to return first.
  if (was_asking) {
    after_question_ = [this, to_net, step] { Go(to_net, step); };
    return;
  }
  page_->ForgetQuestions();
  Expect();
  if (to_net) {
    const auto leave = [this, step] {
      page_->LetGo();
      step();
    };
    // The gate opens with this step. A local page that were still there could send out what it has read.
    if (!IsOfTheNet(page_->url())) return EndProcess(leave);
    step = leave;
  }
  Probe(step);
  step();
}

void WebEngineView::Probe(std::function<void()> step) {
  probed_ = page_->renderProcessPid();
  if (probed_ <= 0 || !page_->RunsScripts()) return page_->HearAgain();
  held_up_ = std::move(step);
  unanswered_.start();
  page_->runJavaScript(QStringLiteral("0"), QWebEngineScript::ApplicationWorld,
                       [this, number = ++probes_](const QVariant&) {
                         if (number == probes_) Answered();
                       });
}

void WebEngineView::Answered() {
  unanswered_.stop();
  held_up_ = {};
  page_->HearAgain();
}

void WebEngineView::EndProcess(std::function<void()> then) {
  unanswered_.stop();
  const qint64 process = page_->renderProcessPid();
  held_up_ = std::move(then);
  if (process <= 0 || kill(static_cast<pid_t>(process), SIGKILL) != 0) ProcessEnded();
}

void WebEngineView::ProcessEnded() {
  const auto step = std::exchange(held_up_, {});
  ++probes_;
  Answered();
  if (step) return step();
  // A page whose process died is not loading any more.
  Finished();
}

void WebEngineView::EndIfStuck() {
  page_->Silence();
  Probe({});
}

void WebEngineView::LoadFromNet() {
  Go(false, [this] { page_->ReloadFromNet(); });
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
  if (!address.isValid() || !MayBeShown(address)) return;
  Go(IsOfTheNet(address), [this, address] { page_->load(address); });
}

void WebEngineView::Back() {
  if (page_->history()->canGoBack()) Step(-1, QWebEnginePage::Back);
}

void WebEngineView::Forward() {
  if (page_->history()->canGoForward()) Step(1, QWebEnginePage::Forward);
}

void WebEngineView::Step(int places, QWebEnginePage::WebAction action) {
  const QWebEngineHistory& history = *page_->history();
  const QUrl address = history.itemAt(history.currentItemIndex() + places).url();
  Go(IsOfTheNet(address), [this, action] { page_->triggerAction(action); });
}

void WebEngineView::Refresh() {
  if (page_->url().isValid()) Go(false, [this] { page_->triggerAction(QWebEnginePage::Reload); });
}

void WebEngineView::Stop() {
  expecting_.stop();
  page_->triggerAction(QWebEnginePage::Stop);
  EndIfStuck();
}

bool WebEngineView::Busy() const { return expecting_.isActive() || page_->isLoading(); }

QString WebEngineView::LocationName() const {
  const QString title = page_->title();
  // Where a page has no title, the engine makes one of the file's name, and encodes some of it.
  const QString name = page_->url().fileName(QUrl::FullyDecoded);
  return QUrl::fromPercentEncoding(title.toUtf8()) == name ? name : title;
}

QUrl WebEngineView::LocationAddress() const { return page_->url(); }

void WebEngineView::ShowMenu(const QPoint& at) {
  auto* menu = new QMenu(view_.get());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const auto action : {QWebEnginePage::Back, QWebEnginePage::Forward, QWebEnginePage::Reload})
    menu->addAction(page_->action(action));
  menu->addSeparator();
  const QWebEngineContextMenuRequest* request = view_->lastContextMenuRequest();
  if (request != nullptr && request->linkUrl().isValid())
    menu->addAction(page_->action(QWebEnginePage::CopyLinkToClipboard));
  using Request = QWebEngineContextMenuRequest;
  for (const auto& [action, flag] : {std::pair{QWebEnginePage::Cut, Request::CanCut},
                                     {QWebEnginePage::Copy, Request::CanCopy},
                                     {QWebEnginePage::Paste, Request::CanPaste},
                                     {QWebEnginePage::SelectAll, Request::CanSelectAll}})
    if (request == nullptr || request->editFlags().testFlag(flag)) menu->addAction(page_->action(action));
  menu->popup(view_->mapToGlobal(at));
}

}  // namespace pelmar
