// A page of the web engine. The page may show local files and load their parts, but gets no permission, no download and
// no window of its own. Its questions are in Czech. The page and its processes stay on one side, the disk or the net,
// for their whole life.
#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QWebEnginePage>
#include <functional>

namespace pelmar {

enum class PageSide {
  kDisk,         // reads local files and sends nothing
  kDiskWithNet,  // one load of a local page with its parts on the net; its scripts, which could send files, don't run
  kNet,
};

class WebEnginePage : public QWebEnginePage {
  Q_OBJECT

 public:
  WebEnginePage(QWebEngineProfile* profile, PageSide side);

  [[nodiscard]] PageSide Side() const { return side_; }

  // Call at each command of the person. Answers the open question with No. Until AllowQuestions(), the page may be left
  // without a question, and each other question gets No.
  void AnswerNo();
  void AllowQuestions() { answers_no_ = false; }
  // Call before another page loads. Allows questions again if the person has switched off the present page's questions.
  void ResetQuestions();
  [[nodiscard]] bool Asking() const { return question_ != nullptr; }

  std::function<void()> on_coming;                    // another page is about to load
  std::function<void()> on_asking;                    // a question is about to be shown
  std::function<void()> on_answered;                  // a question was closed
  std::function<void(const QUrl& address)> on_leave;  // the address needs a page of another side

 protected:
  bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool is_main_frame) override;
  void javaScriptAlert(const QUrl& origin, const QString& text) override;
  bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
  bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& initial, QString* result) override;
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {}

 private:
  // Shows the address in this page, although the page asked for a new window.
  void OpenHere(const QUrl& address);
  void AskToLeaveTheDisk(const QUrl& address);
  // Shows a question of the page. From the third question on, the person may switch off further questions.
  // False for No, and if the page is hidden, already asks or may not ask.
  bool Ask(QDialog& question);
  bool AskInBox(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                QMessageBox::StandardButton default_button);
  void NameActions();
  void RefuseRequests();

  const PageSide side_;
  bool loaded_ = false;
  QPointer<QDialog> question_;
  int questions_ = 0;           // number of questions of the page so far
  bool questions_off_ = false;  // the person switched off further questions
  bool answers_no_ = false;     // from AnswerNo() to AllowQuestions()
};

}  // namespace pelmar
