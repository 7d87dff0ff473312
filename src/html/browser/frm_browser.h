// `frmBrowser`: the internal browser, a window around a web view. It is hidden on closing and keeps its page and its
// history for the run; where it is the whole program, its closing asks and ends the program.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "html/browser/web_view.h"
#include "platform/platform.h"

class QLabel;

namespace Ui {
class frmBrowser;
}

namespace pelmar {

class FrmBrowser : public QMainWindow {
  Q_OBJECT

 public:
  // `end_program` is called where the browser is the whole program and the person wants to end it; otherwise nothing.
  FrmBrowser(WebViewMaker& maker, Platform& platform, std::function<void()> end_program);
  ~FrmBrowser() override;

  // Shows a file, whose path is UTF-8. An empty one does nothing.
  void ShowInBrowser(const std::string& path);
  // The start as the whole program: the window with its first page.
  void ShowAlone();
  // Shows the window, or brings it to the front.
  void Present();

  QString StartingAddress;
  bool DontNavigateNow = false;  // the program itself changes the address list

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ConnectView();
  void ConnectToolBar();
  void ConnectAddress();
  // The address into the box and, new, into its list; then it is loaded.
  void Visit(const QString& address);
  void NavigateToBox();
  // Loads the address, or says why it doesn't.
  void Load(const QString& address);
  void ShowCaption();
  void ShowHistory();
  void timTimer_Timer();
  void ShowState();
  void View_Progress(qint64 progress, qint64 maximum);
  void View_Finished();
  // Says where a local page is in UTF-8 that it doesn't declare.
  void ShowEncoding();
  // Into the first row of the list, which is selected; its other rows of this address go.
  void PutOnTop(const QString& address);
  void Stop_Click();
  void Open_Click();
  void Close_Click();
  void LoadNet_Click();

  Platform& platform_;
  std::function<void()> end_program_;
  std::unique_ptr<Ui::frmBrowser> ui_;
  QString link_;  // the one that is pointed at
  QLabel* status_ = nullptr;
  QLabel* progress_ = nullptr;
  QLabel* encoding_ = nullptr;
  QTimer timTimer{this};
  bool centred_ = false;
  std::unique_ptr<WebView> view_;  // last: its page must not call into a window that is half gone
};

}  // namespace pelmar
