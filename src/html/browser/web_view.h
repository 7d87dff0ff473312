// A control that shows web pages, as the internal browser's window sees it. The real one lies in the module
// pelmar-browser, which is loaded at its first use; tests have a scripted one. Everything runs on the interface thread.
#pragma once

#include <QString>
#include <QUrl>
#include <QtPlugin>
#include <functional>
#include <memory>

class QWidget;

namespace pelmar {

class WebView {
 public:
  WebView() = default;
  WebView(const WebView&) = delete;
  WebView& operator=(const WebView&) = delete;
  virtual ~WebView() = default;

  // What is on the screen. This object owns it, though it is a child of the widget that the view was made for.
  [[nodiscard]] virtual QWidget* Widget() = 0;

  // Where there is nothing to do (no page to go back to), these do nothing.
  virtual void Load(const QUrl& address) = 0;
  virtual void Go(int places) = 0;  // in the history: -1 back, 1 forward
  virtual void Refresh() = 0;
  virtual void Stop() = 0;
  // Ends a page that doesn't answer within three seconds. The commands above do that too.
  virtual void EndIfStuck() = 0;
  // Loads the present page again, and what it has on the net with it, this once.
  virtual void LoadFromNet() = 0;

  [[nodiscard]] virtual bool CanGo(int places) const = 0;
  [[nodiscard]] virtual bool Busy() const = 0;
  [[nodiscard]] virtual QString LocationName() const = 0;  // the page's title; its file's name where it has none
  [[nodiscard]] virtual QUrl LocationAddress() const = 0;

  std::function<void(qint64 progress, qint64 maximum)> on_progress;  // a maximum of 0 when there is nothing to load
  std::function<void()> on_change;                                   // the title changed or a load began
  std::function<void(bool)>
      on_withheld;                    // a local page has parts on the net that it didn't get; false: another page comes
  std::function<void()> on_finished;  // a load ended, well or not, or the page's own link led elsewhere in it
  std::function<void(const QString&)> on_link;  // the address of the link that is pointed at; "" when it is left
};

// What the module's plug-in object is.
class WebViewMaker {
 public:
  WebViewMaker() = default;
  WebViewMaker(const WebViewMaker&) = delete;
  WebViewMaker& operator=(const WebViewMaker&) = delete;
  virtual ~WebViewMaker() = default;
  [[nodiscard]] virtual std::unique_ptr<WebView> Make(QWidget* parent) = 0;
};

}  // namespace pelmar

#define PELMAR_WEB_VIEW_MAKER "cz.pelmar.vex.WebViewMaker/4"
Q_DECLARE_INTERFACE(pelmar::WebViewMaker, PELMAR_WEB_VIEW_MAKER)
