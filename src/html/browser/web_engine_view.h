// The web view of the module: Qt WebEngine, drawn without a graphics processor, so that it works on every screen and
// the program needn't prepare for it at its start. Nothing of what is visited is kept on the disk.
#pragma once

#include <QTimer>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include "html/browser/web_engine_page.h"
#include "html/windows/web_view.h"

namespace pelmar {

class WebEngineView : public QObject, public WebView {
  Q_OBJECT

 public:
  explicit WebEngineView(QWidget* parent);
  ~WebEngineView() override;

  QWidget* Widget() override { return view_.get(); }
  void Load(const QUrl& address) override;
  void Back() override;
  void Forward() override;
  void Refresh() override;
  void Stop() override;
  [[nodiscard]] bool Busy() const override;
  [[nodiscard]] QString LocationName() const override;
  [[nodiscard]] QUrl LocationAddress() const override;
  void ReadText(std::function<void(const QString& text)> then) override;

 private:
  void ConnectPage();
  void Expect();
  void TellChange();
  void Finished();
  void ShowMenu(const QPoint& at);

  std::unique_ptr<QWebEngineProfile> profile_;
  std::unique_ptr<QWebEngineView> view_;
  WebEnginePage* page_ = nullptr;
  QTimer expecting_;  // runs from a command to the begin of its load
};

}  // namespace pelmar
