#include "shell/windows/start.h"

#include <QKeyEvent>

#include "platform/qt/convert.h"
#include "platform/qt/key_router.h"
#include "ui_start.h"

namespace pelmar {
namespace {

// The distance of the greeting from its shadow, in pixels.
constexpr int kShadow = 2;

bool IsModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
         key == Qt::Key_Meta || key == Qt::Key_CapsLock || key == Qt::Key_NumLock;
}

}  // namespace

Start::Start(SettingsRecord& settings, Callbacks callbacks)
    : FormDialog(nullptr), settings_(settings), callbacks_(std::move(callbacks)) {
  ui_->Label8->setContentsMargins(kShadow, kShadow, 0, 0);
  ui_->Check1->setChecked(!settings_.ShowStart);
  ui_->Label9->installEventFilter(this);
  KeyRouter::Get().Add(KeyTurn::kWindow, *this, [this](QWidget&, const QKeyEvent& press) {
    if (IsModifier(press.key())) return false;
    Leave();
    return true;
  });
  connect(ui_->Command1, &QPushButton::clicked, this, &Start::Leave);
  connect(ui_->Command2, &QPushButton::clicked, this, &Start::Command2_Click);
  connect(ui_->Check1, &QCheckBox::toggled, this, [this](bool checked) { settings_.ShowStart = !checked; });
}

void Start::showEvent(QShowEvent* event) {
  ui_->Label9->setText(TextToQString(settings_.UserName));
  DialogWindow::showEvent(event);
}

bool Start::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_->Label9 && event->type() == QEvent::MouseButtonRelease) {
    Label9_Click();
    return true;
  }
  return DialogWindow::eventFilter(watched, event);
}

void Start::Leave() {
  hide();
  callbacks_.show_main();
}

void Start::Command2_Click() {
  callbacks_.show_main();
  hide();
  callbacks_.show_open();
}

void Start::Label9_Click() {
  callbacks_.show_config();
  ui_->Label9->setText(TextToQString(settings_.UserName));
}

}  // namespace pelmar
