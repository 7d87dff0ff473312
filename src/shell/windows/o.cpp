#include "shell/windows/o.h"

#include "platform/qt/convert.h"
#include "shell/common.h"
#include "shell/release_notes.h"
#include "shell/version.h"
#include "ui_o.h"

namespace pelmar {
namespace {

constexpr std::string_view kName = "Orvilanths Pelmar VEX";

}  // namespace

O::O(const SettingsRecord& settings, Platform& platform, QWidget* parent)
    : FormDialog(parent), settings_(settings), platform_(platform) {
  ui_->Label2->setMouseTracking(true);
  ui_->Text1->SetText(ToBytes(ReleaseNotes()));
  connect(ui_->Command1, &QPushButton::clicked, this,
          [this] { platform_.ShowAbout("Orvilanths Pelmar VEX v" PELMAR_VERSION, "Autor: Orvilanths"); });
}

void O::showEvent(QShowEvent* event) {
  ui_->Label3->setText(TextToQString(settings_.UserName));
  DialogWindow::showEvent(event);
}

void O::mouseMoveEvent(QMouseEvent* event) {
  platform_.ReseedRandom();
  ui_->Label2->setText(TextToQString(RandomCase(kName, DrawFrom(platform_))));
  DialogWindow::mouseMoveEvent(event);
}

}  // namespace pelmar
