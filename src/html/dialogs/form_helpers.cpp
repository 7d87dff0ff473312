#include "html/dialogs/form_helpers.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <algorithm>

#include "platform/qt/controls/swatch.h"
#include "platform/qt/convert.h"
#include "shell/common.h"

namespace pelmar {
namespace {

std::optional<std::string> TextIf(const QCheckBox* box, const QString& text) {
  return box->isChecked() ? std::optional(TextFromQString(text)) : std::nullopt;
}

class GreyFollower : public QObject {
 public:
  GreyFollower(QWidget* source, QWidget* follower) : QObject(follower), follower_(follower) {
    source->installEventFilter(this);
    follower->setEnabled(source->isEnabled());
  }

  bool eventFilter(QObject* source, QEvent* event) override {
    if (event->type() == QEvent::EnabledChange) follower_->setEnabled(static_cast<QWidget*>(source)->isEnabled());
    return false;
  }

 private:
  QWidget* follower_;
};

}  // namespace

void EnableWith(QCheckBox* box, std::initializer_list<QWidget*> widgets) {
  for (QWidget* widget : widgets) {
    widget->setEnabled(box->isChecked());
    QObject::connect(box, &QCheckBox::toggled, widget, &QWidget::setEnabled);
  }
}

void GreyWith(QWidget* source, QWidget* follower) { new GreyFollower(source, follower); }

void ConnectColorChoice(QAbstractButton* button, Swatch* swatch, QLabel* hex, std::function<Color(Color)> pick,
                        std::function<void(const QColor&)> taken) {
  GreyWith(button, hex);
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

QString BlankLed(int value) { return Utf8ToQString(NumberWithSignBlank(value)); }

QString BlankLedPercent(int value) { return BlankLed(value) + QLatin1Char('%'); }

void ShowValue(QAbstractSlider* bar, QLabel* label, std::function<QString(int)> write) {
  GreyWith(bar, label);
  QObject::connect(bar, &QAbstractSlider::valueChanged, label, [label, write = std::move(write)](int value) {
    label->setText(write ? write(value) : QString::number(value));
  });
}

std::optional<std::string> Written(const QCheckBox* box, const QLabel* field) { return TextIf(box, field->text()); }

std::optional<std::string> Written(const QCheckBox* box, const QLineEdit* field) { return TextIf(box, field->text()); }

std::optional<std::string> Written(const QCheckBox* box, const QComboBox* field) {
  return TextIf(box, field->currentText());
}

int SetOption(std::initializer_list<const QRadioButton*> options) {
  const auto* const set =
      std::find_if(options.begin(), options.end(), [](const QRadioButton* option) { return option->isChecked(); });
  return set == options.end() ? 0 : static_cast<int>(set - options.begin());
}

}  // namespace pelmar
