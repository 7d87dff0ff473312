// The interface to the widget that shows web pages in the internal browser. The module pelmar-browser implements this
// interface, and so do the tests. All calls come from the thread of the windows.
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

  // The widget on the screen. This object owns the widget, although the widget also has a parent.
  [[nodiscard]] virtual QWidget* Widget() = 0;

  // These commands do nothing if they can't be done, for example without a page to go back to.
  virtual void Load(const QUrl& address) = 0;
  virtual void Go(int steps) = 0;  // steps in the history: -1 back, 1 forward
  virtual void Refresh() = 0;
  virtual void Stop() = 0;
  // Ends the process of a page that doesn't answer within three seconds. The commands above also end such a process.
  virtual void EndIfStuck() = 0;
  // Loads the present page again, this time with its parts from the net.
  virtual void LoadFromNet() = 0;

  [[nodiscard]] virtual bool Busy() const = 0;
  [[nodiscard]] virtual QString LocationName() const = 0;  // the title, or the name of a file without a title
  [[nodiscard]] virtual QUrl LocationAddress() const = 0;

  std::function<void(qint64 progress, qint64 maximum)> on_progress;  // the maximum is 0 if nothing loads
  std::function<void()> on_change;                                   // the title changed or a load began
  std::function<void()> on_coming;                                   // a page is about to load
  std::function<void()> on_withheld;  // a local page lacks a part, because the request to the net was blocked
  std::function<void()> on_finished;  // a load or the page's process ended, or the address changed without a load
  std::function<void(const QString&)> on_link;  // the address of the link under the mouse, or ""
};

// The interface of the module's plug-in object.
class WebViewMaker {
 public:
  WebViewMaker() = default;
  WebViewMaker(const WebViewMaker&) = delete;
  WebViewMaker& operator=(const WebViewMaker&) = delete;
  virtual ~WebViewMaker() = default;
  [[nodiscard]] virtual std::unique_ptr<WebView> Make(QWidget* parent) = 0;
};

}  // namespace pelmar

#define PELMAR_WEB_VIEW_MAKER "cz.pelmar.vex.WebViewMaker/5"
Q_DECLARE_INTERFACE(pelmar::WebViewMaker, PELMAR_WEB_VIEW_MAKER)
