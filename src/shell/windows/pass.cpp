#include "shell/windows/pass.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>

#include "platform/qt/convert.h"
#include "platform/qt/frames/dialog_parent.h"
#include "shell/windows/other_windows.h"
#include "ui_pass.h"

namespace pelmar {

Pass::Pass(const SettingsRecord& settings, Platform& platform, std::function<void(bool)> hide_text, QWidget* parent)
    : FormDialog(parent), settings_(settings), platform_(platform), hide_text_(std::move(hide_text)) {
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  OnEnter(ui_->Text1, [this] { Try(); });
  connect(ui_->Command1, &QPushButton::clicked, this, &Pass::Try);
  ui_->Command1->setAttribute(Qt::WA_InputMethodEnabled);
  ui_->Command1->installEventFilter(this);
}

void Pass::Run() {
  ui_->Text1->clear();
  hide_text_(true);
  const QPointer<QWidget> parent = DialogParent();
  {
    const OtherWindowsAway away({this, parentWidget()});
    exec();
  }
  ExpectActive(parent);  // possible now that the other windows are visible
  hide_text_(false);
}

// After a wrong password the button has the keyboard focus. Typed text still goes to the password field.
void Pass::keyPressEvent(QKeyEvent* event) {
  const QString text = event->text();
  if (focusWidget() == ui_->Text1 || text.isEmpty() || !text.front().isPrint())
    return DialogWindow::keyPressEvent(event);
  ui_->Text1->setFocus();
  QCoreApplication::sendEvent(ui_->Text1, event);
}

// A letter from a dead key comes as text of an input method, without a key press.
bool Pass::eventFilter(QObject* watched, QEvent* event) {
  if (watched != ui_->Command1 || event->type() != QEvent::InputMethod)
    return DialogWindow::eventFilter(watched, event);
  const QString typed = static_cast<QInputMethodEvent*>(event)->commitString();
  if (typed.isEmpty()) return true;
  ui_->Text1->setFocus();
  ui_->Text1->insert(typed);
  return true;
}

void Pass::Try() {
  if (TextFromQString(ui_->Text1->text()) == settings_.LockPassword) return accept();
  platform_.Message(MessageType::kOkInfo, "Špatné helso!", "Zámek");
  ui_->Text1->clear();
  ui_->Command1->setFocus();
}

}  // namespace pelmar
