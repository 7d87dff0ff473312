// A page of the web engine under the program's rules: it may show local files and what they load, but it gets no
// permission, no download and no window of its own, and its questions come in Czech. The page and its processes stay on
// one side, the disk's or the net's, from the first load to their end.
#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QWebEnginePage>
#include <functional>

namespace pelmar {

enum class PageSide {
  kDisk,         // reads local files and sends nothing
  kDiskWithNet,  // one load of a local page with its parts on the net; no script runs that could send what it reads
  kNet,
};

class WebEnginePage : public QWebEnginePage {
  Q_OBJECT

 public:
  WebEnginePage(QWebEngineProfile* profile, PageSide side);

  [[nodiscard]] PageSide Side() const { return side_; }

  // The person has given a command: an open question is answered with No, and so is every one until HearAgain().
  void Silence();
  void HearAgain() { silenced_ = false; }
  // Another page is asked for, which nobody has wished to be spared of.
  void ForgetQuestions();
  [[nodiscard]] bool Asking() const { return question_ != nullptr; }

  std::function<void()> on_coming;                    // another page is about to come
  std::function<void()> on_asking;                    // a question is about to be shown
  std::function<void()> on_answered;                  // a question has gone
  std::function<void(const QUrl& address)> on_leave;  // this page can't show it: another one has to

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
  void NameActions();
  void RefuseRequests();

  const PageSide side_;
  bool loaded_ = false;
  QPointer<QDialog> question_;
  int questions_ = 0;   // of the page
  bool muted_ = false;  // the person wants no more of them
  bool silenced_ = false;
};

}  // namespace pelmar
