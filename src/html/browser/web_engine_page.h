// A page of the web engine under the program's rules: it may show local files and what they load, but it gets no
// permission, no download and no window of its own, and its questions come in Czech.
#pragma once

#include <QWebEnginePage>

namespace pelmar {

class WebEnginePage : public QWebEnginePage {
  Q_OBJECT

 public:
  WebEnginePage(QWebEngineProfile* profile, QObject* parent);

 protected:
  bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool is_main_frame) override;
  void javaScriptAlert(const QUrl& origin, const QString& text) override;
  bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
  bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& initial, QString* result) override;
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {}

 private:
  // A page that asked for a window of its own.
  void OpenHere(const QUrl& address);
  [[nodiscard]] bool LeavesTheDisk(const QUrl& address) const;
  void AskToLeaveTheDisk(const QUrl& address);
  void NameActions();
  void RefuseRequests();
};

}  // namespace pelmar
