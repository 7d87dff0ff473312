// `frmBrowser`: the internal browser, a window around a web view. Closing hides the window, which keeps its page and
// its history until the program ends. If the browser is the whole program, closing asks and ends the program.
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
  // `end_program` is called when the person ends a browser that is the whole program, and is empty in the editor.
  FrmBrowser(WebViewMaker& maker, Platform& platform, std::function<void()> end_program);
  ~FrmBrowser() override;

  // Shows a file.
  void ShowInBrowser(const std::string& path);
  // Shows the window with its first page. Only for a browser that is the whole program.
  void ShowAlone();

  QString StartingAddress;
  bool DontNavigateNow = false;  // true while the program itself changes the address list

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ConnectView();
  void ConnectToolBar();
  void ConnectAddress();
  // Puts the address into the box and its list, then loads it.
  void Visit(const QString& address);
  void NavigateToBox();
  // Loads the address, or shows a message that refuses the address.
  void Load(const QString& address);
  void ShowCaption();
  void ShowHistory();
  void timTimer_Timer();
  void ShowState();
  void View_Progress(qint64 progress, qint64 maximum);
  void View_Finished();
  // Makes the address the first row of the list, selects the row and removes older rows of the same address.
  void PutOnTop(const QString& address);
  void Stop_Click();
  void Open_Click();
  void Close_Click();
  void LoadNet_Click();

  Platform& platform_;
  std::function<void()> end_program_;
  std::unique_ptr<Ui::frmBrowser> ui_;
  QLabel* status_ = nullptr;
  QLabel* progress_ = nullptr;
  QLabel* link_ = nullptr;  // the target of the link under the mouse
  QTimer timTimer{this};
  bool centred_ = false;
  std::unique_ptr<WebView> view_;  // declared last, so deleted first: its page calls this window
};

}  // namespace pelmar
