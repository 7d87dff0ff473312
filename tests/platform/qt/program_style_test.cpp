// What can be told apart on a dark desktop, measured on pictures.
#include "platform/qt/program_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <cmath>

namespace pelmar {
namespace {

double Luminance(QColor color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(QColor one, QColor other) {
  const double a = Luminance(one), b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// The strongest pixel of the rim, on the row through the middle of the box.
double RimContrast(QWidget& box, const QColor& ground) {
  box.resize(box.sizeHint());
  const QImage picture = box.grab().toImage();
  double strongest = 1;
  for (int x = 0; x < 4; ++x)
    strongest = std::max(strongest, Contrast(picture.pixelColor(x, picture.height() / 2), ground));
  return strongest;
}

TEST(ProgramStyle, ShowsWhatIsOffOnLightAndDarkGround) {
  ProgramStyle style(QStringLiteral("fusion"));
  for (const QColor& ground : {QColor(239, 239, 239), QColor(53, 53, 53), QColor(30, 30, 34)}) {
    QPalette palette(ground);
    style.polish(palette);
    EXPECT_GE(
        Contrast(palette.color(QPalette::Disabled, QPalette::Text), palette.color(QPalette::Disabled, QPalette::Base)),
        4.5);
    QCheckBox check;
    QRadioButton option;
    for (QWidget* box : std::initializer_list<QWidget*>{&check, &option}) {
      box->setStyle(&style);
      box->setPalette(palette);
      for (const bool on : {true, false}) {
        box->setEnabled(on);
        EXPECT_GE(RimContrast(*box, ground), 3) << box->metaObject()->className() << ground.red() << on;
      }
    }
  }
}

TEST(ProgramStyle, FramesTheBarOrTheListThatHasTheKeyboard) {
  QWidget window;
  window.resize(300, 300);
  QScrollBar bar(&window);
  QListWidget list(&window);
  QComboBox box(&window);
  bar.setFocusPolicy(Qt::StrongFocus);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (QWidget* focus : std::initializer_list<QWidget*>{&bar, &list, &box}) {
    focus->setFocus();
    for (QWidget* widget : std::initializer_list<QWidget*>{&bar, &list, &box}) {
      const QColor corner = widget->grab().toImage().pixelColor(0, 0);
      EXPECT_EQ(corner == widget->palette().color(QPalette::Highlight), widget == focus && widget != &box);
    }
  }
}

}  // namespace
}  // namespace pelmar
