#include "html/dialogs/form_helpers.h"

#include <QAbstractSlider>
#include <QComboBox>
#include <QLabel>

#include "platform/qt/controls/swatch.h"
#include "platform/qt/convert.h"
#include "shell/common.h"

namespace pelmar {

void EnableWith(QCheckBox* box, std::initializer_list<QWidget*> widgets) {
  for (QWidget* widget : widgets) {
    widget->setEnabled(box->isChecked());
    QObject::connect(box, &QCheckBox::toggled, widget, &QWidget::setEnabled);
  }
}

void ConnectColorChoice(QAbstractButton* button, Swatch* swatch, QLabel* hex, std::function<Color(Color)> pick,
                        std::function<void(const QColor&)> taken) {
  QObject::connect(button, &QAbstractButton::clicked, swatch,
                   [swatch, hex, pick = std::move(pick), taken = std::move(taken)] {
                     const Color color = pick(ColorFromQt(swatch->Color()));
                     swatch->setColor(ColorToQt(color));
                     hex->setText(Utf8ToQString(ColorToHex(color)));
                     if (taken) taken(swatch->Color());
                   });
}

void AcceptFreeText(QComboBox* box) {
  box->setCompleter(nullptr);
  const QString text = box->currentText();
  box->setCurrentIndex(box->findText(text));
  box->setEditText(text);
}

QString Plain(int value) { return QString::number(value); }

QString BlankLed(int value) { return Utf8ToQString(NumberWithSignBlank(value)); }

void ShowValue(QAbstractSlider* bar, QLabel* label, std::function<QString(int)> write) {
  QObject::connect(bar, &QAbstractSlider::valueChanged, label,
                   [label, write = std::move(write)](int value) { label->setText(write(value)); });
}

void LinkUnit(QAbstractButton* percent, QAbstractSlider* bar, QLabel* label, WriteNumber write, BarRange in_percent,
              BarRange in_pixels) {
  const auto in_unit = [percent, write](int value) {
    return percent->isChecked() ? write(value) + QLatin1Char('%') : write(value);
  };
  ShowValue(bar, label, in_unit);
  QObject::connect(percent, &QAbstractButton::toggled, label, [=](bool on) {
    const BarRange range = on ? in_percent : in_pixels;
    bar->setRange(range.least, range.most);
    label->setText(in_unit(bar->value()));
  });
}

}  // namespace pelmar
