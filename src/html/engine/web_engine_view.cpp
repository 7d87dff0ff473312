#include "html/engine/web_engine_view.h"

#include <algorithm>
#include <csignal>

#include <QMenu>
#include <QWebEngineContextMenuRequest>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEngineScript>
#include <utility>

#include "html/browser/web_address.h"
#include "html/engine/engine_start.h"
#include "html/engine/net_refusal.h"

namespace pelmar {
namespace {

// A command after which no load begins within this time counts as one that loads nothing, for example a step to another
// place in the same page.
constexpr int kLongestWaitForLoad = 1000;  // ms
constexpr int kLongestSilence = 3000;      // ms until a page without an answer counts as stuck

PageSide SideOf(const QUrl& address) { return IsOfTheNet(address) ? PageSide::kNet : PageSide::kDisk; }

std::unique_ptr<QWebEngineProfile> MakeProfile(bool allows_net, std::function<void()> on_withheld) {
  auto profile = std::make_unique<QWebEngineProfile>();
  profile->setHttpAcceptLanguage(QStringLiteral("cs"));
  profile->setUrlRequestInterceptor(new NetRefusal(allows_net, std::move(on_withheld), profile.get()));
  return profile;
}

void SetUp(QTimer& timer, int interval) {
  timer.setSingleShot(true);
  timer.setInterval(interval);
}

}  // namespace

WebEngineView::WebEngineView(QWidget* parent) : view_(std::make_unique<QWebEngineView>(parent)) {
  view_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(view_.get(), &QWidget::customContextMenuRequested, this, &WebEngineView::ShowMenu);
  SetUp(expecting_load_, kLongestWaitForLoad);
  SetUp(unanswered_, kLongestSilence);
  connect(&unanswered_, &QTimer::timeout, this, [this] {
    if (page_->renderProcessPid() != probed_) return StopProbe();  // another process shows the page by now
    EndProcess(std::exchange(after_end_, {}));
  });
  // A command that loads nothing may still change the address and the history.
  connect(&expecting_load_, &QTimer::timeout, this, [this] {
    if (Busy() || after_end_) return;
    if (page_->Asking()) return expecting_load_.start();  // the answer may end the command
    Finished();
  });
  for (const PageSide side : {PageSide::kDisk, PageSide::kDiskWithNet, PageSide::kNet}) {
    const bool allows_net = side != PageSide::kDisk;
    const ScopedVariable proxy(kProxyVariable, (allows_net ? open_gate_ : shut_gate_).Address());
    // Only requests of pages on kDisk are withheld. If the present page is on another side, the withheld request came
    // from an earlier page and isn't reported.
    profiles_[side] = MakeProfile(allows_net, [this] {
      if (page_->Side() == PageSide::kDisk) on_withheld();
    });
    // The engine sends this signal for a file that it can't show, and for a link that is marked as a download.
    connect(profiles_[side].get(), &QWebEngineProfile::downloadRequested, this,
            [this](QWebEngineDownloadRequest* download) {
              download->cancel();
              if (download->url() == requested_) page_->ReportUnshown(requested_);
            });
  }
  MakePage(PageSide::kDisk);
}

WebEngineView::~WebEngineView() {
  page_->disconnect(this);
  ++probes_;  // the page's destructor calls the functions of unanswered probes; none of them may act any more
}

void WebEngineView::MakePage(PageSide side) {
  auto page = std::make_unique<WebEnginePage>(profiles_.at(side).get(), side);
  view_->setPage(page.get());
  if (page_ != nullptr) page_->disconnect(this);
  page_ = std::move(page);
  ConnectPage();
}

void WebEngineView::ConnectPage() {
  connect(page_.get(), &QWebEnginePage::loadStarted, this, &WebEngineView::ReportChange);
  connect(page_.get(), &QWebEnginePage::titleChanged, this, &WebEngineView::ReportChange);
  connect(page_.get(), &QWebEnginePage::loadProgress, this, [this](int percent) {
    if (on_progress) on_progress(percent, 100);
  });
  connect(page_.get(), &QWebEnginePage::loadFinished, this, &WebEngineView::Finished);
  // A link to another place in the page changes the address without a load. Nothing else would report the change.
  connect(page_.get(), &QWebEnginePage::urlChanged, this, [this] {
    if (!Busy() && on_finished) on_finished();
  });
  // A closed window makes no sound.
  connect(page_.get(), &QWebEnginePage::visibleChanged, this,
          [this] { page_->setAudioMuted(view_->window()->isHidden()); });
  connect(page_.get(), &QWebEnginePage::linkHovered, this, [this](const QString& address) {
    if (on_link) on_link(address);
  });
  // Queued, because the handler may delete the page, and the page must not be deleted while it sends the signal.
  connect(page_.get(), &QWebEnginePage::renderProcessTerminated, this, &WebEngineView::ProcessEnded,
          Qt::QueuedConnection);
  page_->on_leave = [this](const QUrl& address) {
    QMetaObject::invokeMethod(
        this, [this, address] { Load(address); }, Qt::QueuedConnection);
  };
  page_->on_answered = [this] {
    if (const auto step = std::exchange(after_question_, {})) step();
  };
  page_->on_coming = [this] { on_coming(); };
}

void WebEngineView::Command(std::function<void()> step) {
  const bool was_asking = page_->Asking();
  page_->AnswerNo();
  // The question's event loop runs within a call of the engine. The command waits until this call has returned.
  if (was_asking) {
    after_question_ = [this, step = std::move(step)] { Command(step); };
    return;
  }
  after_question_ = {};
  page_->ResetQuestions();
  expecting_load_.start();
  step();
}

void WebEngineView::RunInPage(const std::function<void()>& step) {
  Probe(step);
  step();
}

void WebEngineView::LoadInNewPage(qsizetype place, PageSide side) {
  place_ = place;
  MakePage(side);
  page_->load(places_[place_]);
}

void WebEngineView::GatherPlaces() {
  QList<QUrl> own;
  for (const QWebEngineHistoryItem& item : page_->history()->items()) own += item.url();
  if (own.isEmpty()) return;
  const QList<QUrl> ahead = own.size() > 1 ? QList<QUrl>() : places_.mid(place_ + 1);
  places_ = places_.first(place_) + own + ahead;
  place_ += page_->history()->currentItemIndex();
}

void WebEngineView::Probe(std::function<void()> step) {
  probed_ = page_->renderProcessPid();
  if (probed_ <= 0 || page_->Side() == PageSide::kDiskWithNet) return page_->AllowQuestions();
  after_end_ = std::move(step);
  unanswered_.start();
  page_->runJavaScript(QStringLiteral("0"), QWebEngineScript::ApplicationWorld,
                       [this, number = ++probes_](const QVariant&) {
                         if (number == probes_) StopProbe();
                       });
}

void WebEngineView::StopProbe() {
  unanswered_.stop();
  after_end_ = {};
  page_->AllowQuestions();
}

void WebEngineView::EndProcess(std::function<void()> then) {
  unanswered_.stop();
  ++probes_;  // a late answer would take `then` away
  const qint64 process = page_->renderProcessPid();
  after_end_ = std::move(then);
  if (process <= 0 || kill(static_cast<pid_t>(process), SIGKILL) != 0) ProcessEnded();
}

void WebEngineView::ProcessEnded() {
  const auto step = std::exchange(after_end_, {});
  ++probes_;
  StopProbe();
  if (step) return step();
  // A load, if there was one, has ended with the process.
  Finished();
}

void WebEngineView::EndIfStuck() {
  page_->AnswerNo();
  Probe({});
}

void WebEngineView::LoadFromNet() {
  Command([this] {
    EndProcess([this] {
      GatherPlaces();
      LoadInNewPage(place_, PageSide::kDiskWithNet);
    });
  });
}

void WebEngineView::ReportChange() {
  if (on_change) on_change();
}

void WebEngineView::Finished() {
  expecting_load_.stop();
  if (on_progress) on_progress(0, 0);
  if (on_finished) on_finished();
}

void WebEngineView::Load(const QUrl& address) {
  if (!address.isValid() || !MayBeShown(address)) return;
  requested_ = address;
  Command([this, address] {
    if (!places_.isEmpty() && SideOf(address) == page_->Side())
      return RunInPage([this, address] { page_->load(address); });
    EndProcess([this, address] {
      GatherPlaces();
      places_ = places_.mid(0, place_ + 1) + QList{address};
      LoadInNewPage(places_.size() - 1, SideOf(address));
    });
  });
}

bool WebEngineView::CanGo(int steps) const {
  const QWebEngineHistory& own = *page_->history();
  // Once this page has opened a second address, for example by a link, the later places of the history are gone.
  return steps < 0 ? own.canGoBack() || place_ > 0
                   : own.canGoForward() || (own.count() <= 1 && place_ + 1 < places_.size());
}

void WebEngineView::Go(int steps) {
  if (!CanGo(steps)) return;
  Command([this, steps] {
    const QWebEngineHistory& own = *page_->history();
    if (steps < 0 ? own.canGoBack() : own.canGoForward())
      return RunInPage(
          [this, steps] { page_->triggerAction(steps < 0 ? QWebEnginePage::Back : QWebEnginePage::Forward); });
    EndProcess([this, steps] {
      GatherPlaces();
      const qsizetype to = std::min(place_ + steps, places_.size() - 1);  // a link may just have cut the history
      LoadInNewPage(to, SideOf(places_[to]));
    });
  });
}

void WebEngineView::Refresh() {
  if (places_.isEmpty()) return;
  Command([this] {
    if (page_->Side() != PageSide::kDiskWithNet && page_->url().isValid())
      return RunInPage([this] { page_->triggerAction(QWebEnginePage::Reload); });
    EndProcess([this] {
      GatherPlaces();
      LoadInNewPage(place_, SideOf(places_[place_]));
    });
  });
}

void WebEngineView::Stop() {
  expecting_load_.stop();
  page_->triggerAction(QWebEnginePage::Stop);
  EndIfStuck();
}

bool WebEngineView::Busy() const { return expecting_load_.isActive() || page_->isLoading(); }

QString WebEngineView::LocationName() const {
  const QString title = page_->title();
  // For a file without a title the engine returns the file's name, partly percent-encoded.
  const QString name = page_->url().fileName(QUrl::FullyDecoded);
  return QUrl::fromPercentEncoding(title.toUtf8()) == name ? name : title;
}

QUrl WebEngineView::LocationAddress() const { return page_->url().isEmpty() ? places_.value(place_) : page_->url(); }

void WebEngineView::ShowMenu(const QPoint& at) {
  auto* menu = new QMenu(view_.get());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(QStringLiteral("&Zpět"), this, [this] { Go(-1); })->setEnabled(CanGo(-1));
  menu->addAction(QStringLiteral("&Vpřed"), this, [this] { Go(1); })->setEnabled(CanGo(1));
  menu->addAction(QStringLiteral("&Obnovit"), this, [this] { Refresh(); });
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
