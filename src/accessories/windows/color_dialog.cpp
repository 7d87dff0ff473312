#include "accessories/windows/color_dialog.h"

#include "platform/color.h"
#include "platform/qt/controls/list_rows.h"
#include "platform/qt/convert.h"
#include "ui_color_dialog.h"

namespace pelmar {
namespace {

QColor Shown(const Channels& c) { return {c.red, c.green, c.blue}; }

}  // namespace

ColorDialog::ColorDialog(Platform& platform, QWidget* parent) : FormDialog(parent), platform_(platform) {
  const std::pair<QScrollBar*, QLabel*> sliders[] = {
      {ui_->VScroll10, ui_->Label1}, {ui_->VScroll11, ui_->Label2}, {ui_->VScroll12, ui_->Label3}};
  for (const auto& [slider, label] : sliders)
    connect(slider, &QScrollBar::valueChanged, this, [this, to = label](int value) { SliderChanged(to, value); });
  for (Swatch* swatch : {ui_->Picture5, ui_->Picture6, ui_->Picture7, ui_->Picture8, ui_->Picture9, ui_->Picture10,
                         ui_->Picture11, ui_->Picture12})
    connect(swatch, &Swatch::clicked, this, [this, swatch] {
      Set({swatch->Color().red(), swatch->Color().green(), swatch->Color().blue()});
    });
  ConnectCommands();
  RefreshColor();
}

void ColorDialog::ConnectCommands() {
  const auto apply = [this](QPushButton* button, Channels (*function)(const Channels&)) {
    connect(button, &QPushButton::clicked, this, [this, function] { Set(function(Now())); });
  };
  apply(ui_->Command3, Inverted);
  apply(ui_->Command4, ToGrey);
  apply(ui_->Command6, Darker);
  apply(ui_->Command7, Lighter);
  apply(ui_->Command8, Rotated);
  apply(ui_->Command9, LowestToZero);
  apply(ui_->Command10, HighestToFull);
  apply(ui_->Command11, MeanToMiddle);
  connect(ui_->Command5, &QPushButton::clicked, this, [this] {
    platform_.ReseedRandom();
    Set(RandomChannels(DrawFrom(platform_)));
  });
  OnRowPicked(*ui_->List1, [this](int row) { Set(FromHistoryRow(Utf8FromQString(ui_->List1->item(row)->text()))); });
  connect(ui_->Command1, &QPushButton::clicked, this, &ColorDialog::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &ColorDialog::hide);
}

Color ColorDialog::PickColor(Color color) {
  ui_->Picture13->setColor(Shown(ChannelsOf(color)));
  Set(ChannelsOf(color));
  exec();
  return picked_color_;
}

Channels ColorDialog::Now() const {
  return {ui_->VScroll10->value(), ui_->VScroll11->value(), ui_->VScroll12->value()};
}

void ColorDialog::Set(const Channels& channels) {
  ui_->VScroll10->setValue(channels.red);
  ui_->VScroll11->setValue(channels.green);
  ui_->VScroll12->setValue(channels.blue);
}

void ColorDialog::SliderChanged(QLabel* value_label, int value) {
  RefreshColor();
  value_label->setText(QString::number(value));
}

void ColorDialog::RefreshColor() {
  const Channels c = Now();
  ui_->Picture3->setColor(Shown(c));
  ui_->Picture1->SetColors(QColor(0, c.green, c.blue), QColor(255, c.green, c.blue));
  ui_->Picture2->SetColors(QColor(c.red, 0, c.blue), QColor(c.red, 255, c.blue));
  ui_->Picture4->SetColors(QColor(c.red, c.green, 0), QColor(c.red, c.green, 255));
  ui_->Label11->setText(Utf8ToQString(ColorToHex(ColorOf(c))));
}

void ColorDialog::Command1_Click() {
  ui_->List1->addItem(Utf8ToQString(HistoryRow(Now())));
  picked_color_ = ColorOf(Now());
  hide();
}

}  // namespace pelmar
