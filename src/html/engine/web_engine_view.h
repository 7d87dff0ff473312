// The module's web view: Qt WebEngine, drawn by software. So the view needs no graphics processor, and the program
// doesn't create a graphics context at each start. Nothing about visited pages is stored on the disk.
#pragma once

#include <QList>
#include <QTimer>
#include <QUrl>
#include <QWebEngineProfile>
#include <QWebEngineView>
#include <map>
#include <memory>

#include "html/browser/web_view.h"
#include "html/engine/net_gate.h"
#include "html/engine/web_engine_page.h"

namespace pelmar {

class WebEngineView : public QObject, public WebView {
  Q_OBJECT

 public:
  explicit WebEngineView(QWidget* parent);
  ~WebEngineView() override;

  QWidget* Widget() override { return view_.get(); }
  void Load(const QUrl& address) override;
  void Go(int steps) override;
  void Refresh() override;
  void Stop() override;
  void EndIfStuck() override;
  void LoadFromNet() override;
  [[nodiscard]] bool Busy() const override;
  [[nodiscard]] QString LocationName() const override;
  [[nodiscard]] QUrl LocationAddress() const override;

 private:
  // Makes an empty page, which replaces the present page if there is one.
  void MakePage(PageSide side);
  void ConnectPage();
  // Closes an open question, then runs the step, which loads a page. Each command of the person that loads a page calls
  // this function.
  void Command(std::function<void()> step);
  // Runs a step in the present page. If the page doesn't answer, ends the page's process and runs the step again.
  void RunInPage(const std::function<void()>& step);
  // Loads a place of the history in a new page. The process of the present page must have ended.
  void LoadInNewPage(qsizetype place, PageSide side);
  // Puts the addresses that the present page has opened into places_, and the index of the shown address into place_.
  // If the page has opened more than one address, drops the places that came after this page.
  void GatherPlaces();
  // Whether the history has a place before (`steps` is -1) or after (1) the shown one.
  [[nodiscard]] bool CanGo(int steps) const;
  // Asks the page for an answer, unless the page has no process or runs no scripts. If the page doesn't answer within
  // three seconds, ends the page's process and runs the step. If the page asks the person something meanwhile, the
  // question isn't shown and doesn't count as an answer.
  void Probe(std::function<void()> step);
  void StopProbe();
  void EndProcess(std::function<void()> then);
  void ProcessEnded();
  void ReportChange();
  void Finished();
  void ShowMenu(const QPoint& at);

  NetGate open_gate_{true}, shut_gate_{false};
  // A new profile reads the address of its NetGate, and never reads the address again.
  std::map<PageSide, std::unique_ptr<QWebEngineProfile>> profiles_;
  std::unique_ptr<WebEnginePage> page_;
  std::unique_ptr<QWebEngineView> view_;
  QList<QUrl> places_;                    // the history, complete only after GatherPlaces
  qsizetype place_ = 0;                   // the index in places_ at which the present page was loaded
  QUrl requested_;                        // the last address for Load
  QTimer expecting_load_;                 // runs after a command until a load ends, for a second at most
  QTimer unanswered_;                     // runs while a probe waits for the page's answer
  qint64 probed_ = 0;                     // the id of the last probed process
  int probes_ = 0;                        // only the answer to the probe with this number counts
  std::function<void()> after_end_;       // the step to run when the page's process has ended
  std::function<void()> after_question_;  // the command to run when the open question is closed
};

}  // namespace pelmar
