// A page of the web engine under the program's rules: it may show local files and what they load, but it gets no
// permission, no download and no window of its own, and its questions come in Czech. The gate is open only while a page
// of the net is shown, or a local one that the person lets there.
#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QWebEnginePage>
#include <functional>

#include "html/browser/net_gate.h"

namespace pelmar {

class WebEnginePage : public QWebEnginePage {
  Q_OBJECT

 public:
  WebEnginePage(QWebEngineProfile* profile, NetGate& gate, QObject* parent);

  // Whether the way to `address` leads from the disk to the net.
  [[nodiscard]] bool LeavesTheDisk(const QUrl& address) const;
  // Loads the present page again with what it has on the net, but without its scripts: they could
  // send out what they read in other files.
  void ReloadFromNet();

  // The next step to the net is the person's, and no script of a local page runs any more.
  void LetGo() { leaving_ = true; }

  // The person has given a command: an open question is answered with No, and so is every one until HearAgain().
  void Silence();
  void HearAgain() { silenced_ = false; }
  // Another page is asked for, which nobody has wished to be spared of.
  void ForgetQuestions();
  [[nodiscard]] bool RunsScripts() const { return !loads_from_net_; }
  [[nodiscard]] bool Asking() const { return question_ != nullptr; }

  std::function<void()> on_coming;                    // another page is about to come
  std::function<void()> on_asking;                    // a question is about to be shown
  std::function<void()> on_answered;                  // a question has gone
  std::function<void(const QUrl& address)> on_leave;  // the person lets a local page go to the net

 protected:
  bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool is_main_frame) override;
  void javaScriptAlert(const QUrl& origin, const QString& text) override;
  bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
  bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& initial, QString* result) override;
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {}

 private:
  // A page that asked for a window of its own.
  void OpenHere(const QUrl& address);
  void AskToLeaveTheDisk(const QUrl& address);
  // Shows a question of the page, and the offer to be spared further ones from the third on. False for No, and where
  // the page asks while it is hidden, already asks or is not to be heard.
  bool Ask(QDialog& question);
  bool AskInBox(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                QMessageBox::StandardButton default_button);
  void SetLoadsFromNet(bool on);
  void NameActions();
  void RefuseRequests();

  NetGate& gate_;
  bool loads_from_net_ = false;  // the person's word for the present page
  bool reloading_from_net_ = false;
  bool leaving_ = false;
  QPointer<QDialog> question_;
  int questions_ = 0;   // of the page
  bool muted_ = false;  // the person wants no more of them
  bool silenced_ = false;
};

}  // namespace pelmar
