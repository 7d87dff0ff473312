#include "shell/windows/pass.h"

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

void Pass::Try() {
  if (TextFromQString(ui_->Text1->text()) == settings_.LockPassword) return accept();
  platform_.Message(MessageType::kOkInfo, "Špatné helso!", "Zámek");
  ui_->Text1->clear();
  ui_->Command1->setFocus();
}

}  // namespace pelmar
