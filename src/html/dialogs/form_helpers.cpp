#include "html/dialogs/form_helpers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <algorithm>

#include "platform/qt/controls/swatch.h"
#include "platform/qt/convert.h"

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

void AcceptFreeText(QComboBox* box) { box->setCompleter(nullptr); }

int SetOption(std::initializer_list<const QRadioButton*> options) {
  const auto* const set =
      std::find_if(options.begin(), options.end(), [](const QRadioButton* option) { return option->isChecked(); });
  return set == options.end() ? 0 : static_cast<int>(set - options.begin());
}

}  // namespace pelmar
