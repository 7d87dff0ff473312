// `frmBrowser`: the internal browser, a window around a web view. Closing hides the window, which keeps its page and
// its history until the program ends. If the browser is the whole program, closing asks whether to end the program.
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
  // `end_program` is called when the person ends a browser that is the whole program. In the editor, `end_program` is
  // empty.
  FrmBrowser(WebViewMaker& maker, Platform& platform, std::function<void()> end_program);
  ~FrmBrowser() override;

  // Loads a file and brings the window to the front.
  void ShowInBrowser(const std::string& path);
  // Shows the window and, unless StartingAddress is empty, loads this address. Only for a browser that is the whole
  // program.
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
  // Adds the address to the list of the address box, shows the address in the box and calls Load.
  void Visit(const QString& address);
  void NavigateToBox();
  // Loads the address. Shows a message instead if MayBeShown() refuses the address. Loads nothing if the text isn't an
  // address.
  void Load(const QString& address);
  void ShowCaption();
  void timTimer_Timer();
  // `busy`: whether a page loads.
  void ShowState(bool busy);
  void View_Progress(qint64 progress, qint64 maximum);
  void View_Finished();
  // Makes the address the first row of the list and selects this row. Removes older rows of the same address.
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
  std::unique_ptr<WebView> view_;  // declared last, so deleted before the members that its callbacks use
};

}  // namespace pelmar
