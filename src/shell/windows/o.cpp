#include "shell/windows/o.h"

#include "platform/qt/convert.h"
#include "shell/common.h"
#include "shell/version.h"
#include "text/codepage.h"
#include "ui_o.h"

namespace pelmar {
namespace {

// The last line is the heading for notes on this version.
constexpr std::string_view kReleaseNotes =
    "Pelmar VEX je malý editor textu a HTML: pět dokumentů v záložkách,\r\n"
    "okna, která píší HTML, hledání a záměna, úpravy textu, šifry\r\n"
    "a kontrolní součty, kalkulačka, poznámky a vlastní prohlížeč.\r\n"
    "\r\n"
    "Text je od disku po obrazovku ve Windows-1250. Soubor se ukládá\r\n"
    "bajt po bajtu tak, jak stojí v okně.\r\n"
    "\r\n"
    "- Řádek může mít miliony znaků, psaní v něm zůstává plynulé.\r\n"
    "- Osamělé znaky CR, LF a jiné řídicí znaky jsou vidět jako značky.\r\n"
    "====================\r\n"
    "Poznámka této verze:"_w;

}  // namespace

O::O(const SettingsRecord& settings, Platform& platform, QWidget* parent)
    : FormDialog(parent), settings_(settings), platform_(platform) {
  for (QWidget* label : {ui_->Label1, ui_->Label2, ui_->Label3, ui_->Label4}) label->setMouseTracking(true);
  ui_->Text1->viewport()->installEventFilter(this);
  ui_->Text1->SetText(ToBytes(kReleaseNotes));
  connect(ui_->Command1, &QPushButton::clicked, this,
          [this] { platform_.ShowAbout("Orvilanths Pelmar VEX v" PELMAR_VERSION, "Autor: Orvilanths"); });
}

void O::showEvent(QShowEvent* event) {
  ui_->Label3->setText(TextToQString(settings_.UserName));
  DialogWindow::showEvent(event);
}

void O::mouseMoveEvent(QMouseEvent*) { MixCase(); }

bool O::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove && watched == ui_->Text1->viewport()) MixCase();
  return DialogWindow::eventFilter(watched, event);
}

void O::MixCase() {
  platform_.ReseedRandom();
  ui_->Label2->setText(TextToQString(RandomCase(TextFromQString(ui_->Label2->text()), DrawFrom(platform_))));
}

}  // namespace pelmar
