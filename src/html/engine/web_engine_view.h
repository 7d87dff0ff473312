// The web view of the module: Qt WebEngine, drawn without a graphics processor, so that it works on every screen and
// the program needn't prepare for it at its start. Nothing of what is visited is kept on the disk.
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
  void Go(int places) override;
  void Refresh() override;
  void Stop() override;
  void EndIfStuck() override;
  void LoadFromNet() override;
  [[nodiscard]] bool CanGo(int places) const override;
  [[nodiscard]] bool Busy() const override;
  [[nodiscard]] QString LocationName() const override;
  [[nodiscard]] QUrl LocationAddress() const override;

 private:
  // The one page from now on, of which nothing is loaded yet.
  void MakePage(PageSide side);
  void ConnectPage();
  // A command of the person that goes to another page.
  void Command(std::function<void()> step);
  // A step within the present page.
  void Stay(const std::function<void()>& step);
  // Loads a place in a new page. The process of the present one has ended by then.
  void Cross(qsizetype place, PageSide side);
  // Puts the present page's history into places_.
  void GatherPlaces();
  // Ends the page's process where it doesn't answer in time, and then takes the step that it held up.
  void Probe(std::function<void()> step);
  void Answered();
  void EndProcess(std::function<void()> then);
  void ProcessEnded();
  void TellChange();
  void Finished();
  void ShowMenu(const QPoint& at);

  NetGate open_gate_{true}, shut_gate_{false};
  // A profile learns its way out when it is made, and keeps it.
  std::map<PageSide, std::unique_ptr<QWebEngineProfile>> profiles_;
  std::unique_ptr<WebEnginePage> page_;
  std::unique_ptr<QWebEngineView> view_;
  QList<QUrl> places_;   // the history; the present page's own takes the place of the one at place_
  qsizetype place_ = 0;  // from 0
  QTimer expecting_;     // runs from a command to the begin of its load
  QTimer unanswered_;    // runs while the page owes an answer to a probe
  qint64 probed_ = 0;    // the process that owes it
  int probes_ = 0;
  std::function<void()> held_up_;  // a command that waits for the page's answer or for its end
  std::function<void()> after_question_;
};

}  // namespace pelmar
