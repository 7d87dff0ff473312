// The web view of the module: Qt WebEngine, drawn without a graphics processor, so that it works on every screen and
// the program needn't prepare for it at its start. Nothing of what is visited is kept on the disk.
#pragma once

#include <QTimer>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include "html/browser/net_gate.h"
#include "html/browser/net_refusal.h"
#include "html/browser/web_engine_page.h"
#include "html/windows/web_view.h"

namespace pelmar {

class WebEngineView : public QObject, public WebView {
  Q_OBJECT

 public:
  WebEngineView(std::unique_ptr<NetGate> gate, QWidget* parent);
  ~WebEngineView() override;

  QWidget* Widget() override { return view_.get(); }
  void Load(const QUrl& address) override;
  void Back() override;
  void Forward() override;
  void Refresh() override;
  void Stop() override;
  void EndIfStuck() override;
  void LoadFromNet() override;
  [[nodiscard]] bool Busy() const override;
  [[nodiscard]] QString LocationName() const override;
  [[nodiscard]] QUrl LocationAddress() const override;

 private:
  void ConnectPage();
  // A command of the person that goes to another page, of the net where `to_net`.
  void Go(bool to_net, std::function<void()> step);
  void Step(int places, QWebEnginePage::WebAction action);
  void Expect();
  // Ends the page's process where it doesn't answer in time, and then takes the step that it held up.
  void Probe(std::function<void()> step);
  void Answered();
  void EndProcess(std::function<void()> then);
  void ProcessEnded();
  void TellChange();
  void Finished();
  void ShowMenu(const QPoint& at);

  std::unique_ptr<NetGate> gate_;
  NetRefusal refusal_{*gate_};
  std::unique_ptr<QWebEngineProfile> profile_;
  std::unique_ptr<QWebEngineView> view_;
  WebEnginePage* page_ = nullptr;
  QTimer expecting_;   // runs from a command to the begin of its load
  QTimer unanswered_;  // runs while the page owes an answer to a probe
  qint64 probed_ = 0;  // the process that owes it
  int probes_ = 0;
  std::function<void()> held_up_;  // a command that waits for the page's answer or for its end
  std::function<void()> after_question_;
};

}  // namespace pelmar
