#include "accessories/windows/prev.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPointer>
#include <algorithm>

#include "platform/qt/convert.h"
#include "ui_prev.h"

namespace pelmar {
namespace {

// Milliseconds. A conversion handles events at this interval, each time for about this long at most.
constexpr int kEventInterval = 10;
constexpr std::size_t kLongestShown = 32767;

}  // namespace

Prev::Prev(Platform& platform, bool stand_alone, Callbacks callbacks, QWidget* parent)
    : FormDialog(parent), platform_(platform), callbacks_(std::move(callbacks)) {
  keypads_ = {
      {ui_->Frame1, &Converter::decimal, ui_->Command35, ui_->Command38, ui_->Command42, &Converter::FromDecimal},
      {ui_->Frame2, &Converter::hexadecimal, ui_->Command36, ui_->Command39, ui_->Command43, &Converter::FromHex},
      {ui_->Frame3, &Converter::octal, ui_->Command37, ui_->Command40, ui_->Command44, &Converter::FromOct}};
  for (const Keypad& keypad : keypads_) {
    ConnectKeypad(keypad);
    keypad.to_text->setEnabled(!stand_alone);
  }
  connect(ui_->Command46, &QPushButton::clicked, this, [this] { callbacks_.to_text(roman_); });
  connect(ui_->Command41, &QPushButton::clicked, this, [this] { callbacks_.to_calculator(converter_.decimal); });
  connect(ui_->Command45, &QPushButton::clicked, this, &Prev::hide);
  new KeyPreview(*this, [this](const QKeyEvent& event) { return PhysicalKey(event); });
}

void Prev::ConnectKeypad(const Keypad& keypad) {
  for (const QPushButton* key : keypad.frame->findChildren<QPushButton*>()) {
    if (key->text().size() != 1) continue;
    connect(key, &QPushButton::clicked, this, [this, field = keypad.field, digit = key->text()[0].toLatin1()] {
      converter_.Digit(field, digit);
      ShowFields();
    });
  }
  connect(keypad.drop_last, &QPushButton::clicked, this, [this, field = keypad.field] {
    converter_.DropLast(field);
    ShowFields();
  });
  connect(keypad.convert, &QPushButton::clicked, this, [this, keypad] { Convert(keypad); });
  connect(keypad.to_text, &QPushButton::clicked, this,
          [this, field = keypad.field] { callbacks_.to_text(converter_.*field); });
}

void Prev::Convert(const Keypad& keypad) {
  const auto number = (converter_.*keypad.conversion)();
  if (!number) {
    platform_.Message(MessageType::kOk, "Číslo je příliš velké, nevejde se do 32 bitů", "Převody");
    return;
  }
  ShowFields();
  ShowRoman(*number);
}

// To build a long numeral takes a while, so this function handles events meanwhile. The function stops when another
// conversion begins, or when the window is hidden or deleted.
void Prev::ShowRoman(std::int32_t number) {
  const int mine = ++conversions_;
  const QPointer<Prev> alive(this);
  QElapsedTimer since_events;
  auto roman = ToRoman(number, [&] {
    if (!since_events.isValid() || since_events.hasExpired(kEventInterval)) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, kEventInterval);
      since_events.start();
    }
    return alive && mine == conversions_;
  });
  if (!roman) return;
  roman_ = std::move(*roman);
  // A line of a million letters would take Qt half a second at each paint, so only the last letters are shown.
  ui_->Label8->setText(roman_.size() <= kLongestShown
                           ? Utf8ToQString(roman_)
                           : QChar(0x2026) + Utf8ToQString(roman_.substr(roman_.size() - kLongestShown + 1)));
}

void Prev::ShowFields() {
  ui_->Label1->setText(Utf8ToQString(converter_.decimal));
  ui_->Label3->setText(Utf8ToQString(converter_.hexadecimal));
  ui_->Label6->setText(Utf8ToQString(converter_.octal));
}

void Prev::hideEvent(QHideEvent* event) {
  ++conversions_;
  DialogWindow::hideEvent(event);
}

Preview Prev::PhysicalKey(const QKeyEvent& event) {
  const auto character = TypedCharacter(event);
  const auto keypad = std::find_if(keypads_.begin(), keypads_.end(), [focus = focusWidget()](const Keypad& one) {
    return one.frame->isAncestorOf(focus);
  });
  if (!character || keypad == keypads_.end()) return Preview::kPass;
  if (*character == '\r') {
    if (keypad->to_text->hasFocus()) return Preview::kPass;
    keypad->convert->click();
    return Preview::kTake;
  }
  const QString caption = *character == '\b' ? keypad->drop_last->text() : QString(QLatin1Char(*character)).toUpper();
  for (QPushButton* key : keypad->frame->findChildren<QPushButton*>()) {
    if (key->text() != caption) continue;
    key->click();
    return Preview::kTake;
  }
  return Preview::kPass;
}

}  // namespace pelmar
