#include "shell/windows/o.h"

#include "platform/qt/convert.h"
#include "shell/common.h"
#include "shell/release_notes.h"
#include "ui_o.h"

namespace pelmar {
namespace {

constexpr std::string_view kName = "Orvilanths Pelmar VEX";

}  // namespace

O::O(const SettingsRecord& settings, Platform& platform, QWidget* parent)
    : DialogWindow(parent), settings_(settings), platform_(platform), ui_(std::make_unique<Ui::O>()) {
  ui_->setupUi(this);
  ScaleLetters(*this);
  ui_->Label2->setMouseTracking(true);
  ui_->Text1->SetText(ToBytes(ReleaseNotes()));
  connect(ui_->Command1, &QPushButton::clicked, this,
          [this] { platform_.ShowAbout("Orvilanths Pelmar VEX v8.9.2.1b CZ", "Autor: Orvilanths"); });
}

O::~O() = default;

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
