// A page of the web engine. A page gets no permission, no download and no window of its own. It keeps its PageSide for
// its whole life.
#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QWebEnginePage>
#include <functional>

namespace pelmar {

enum class PageSide {
  kDisk,  // reads local files and sends nothing
  // Loads a local page once, with its parts on the net. Scripts don't run, since a script could send local files.
  kDiskWithNet,
  kNet,
};

class WebEnginePage : public QWebEnginePage {
  Q_OBJECT

 public:
  WebEnginePage(QWebEngineProfile* profile, PageSide side);

  [[nodiscard]] PageSide Side() const { return side_; }

  // Call at each command of the person. Answers an open question with No. Until AllowQuestions(), new questions aren't
  // shown: the question whether to leave the page gets Yes, every other question gets No.
  void AnswerNo();
  void AllowQuestions() { answers_no_ = false; }
  // Call at each command that loads a page. The page may then ask a limited number of questions. Later questions get
  // the same answers as after AnswerNo(), which stays in effect.
  void ResetQuestions() { questions_ = 0; }
  [[nodiscard]] bool Asking() const { return question_ != nullptr; }
  // Says that the browser can't show the file at this address.
  void ReportUnshown(const QUrl& address);

  std::function<void()> on_coming;                    // a page is about to load here
  std::function<void()> on_answered;                  // a question was closed
  std::function<void(const QUrl& address)> on_leave;  // the address needs a page of another side

 protected:
  bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool is_main_frame) override;
  void javaScriptAlert(const QUrl& origin, const QString& text) override;
  bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
  bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& initial, QString* result) override;
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {}

 private:
  // Loads the address of a requested new window in this page, if this page may open the address.
  void OpenHere(const QUrl& address);
  void AskToLeaveTheDisk(const QUrl& address);
  [[nodiscard]] bool MayAsk() const;
  // Shows a question of the page. True only if the person agrees. A page that is hidden, already asks or may not ask
  // shows no question. While a modal dialog is open, no page asks.
  bool Ask(QDialog& question);
  bool AskInBox(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                QMessageBox::StandardButton default_button);
  void NameActions();
  void RefuseRequests();

  const PageSide side_;
  bool loaded_ = false;
  QPointer<QDialog> question_;
  int questions_ = 0;        // number of questions shown since ResetQuestions()
  bool answers_no_ = false;  // from AnswerNo() to AllowQuestions()
};

}  // namespace pelmar
