// What is seen of boxes, bars and pictures, measured on pictures of them.
#include "platform/qt/program_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <cmath>
#include <filesystem>

#include "platform/qt/convert.h"
#include "platform/qt/svg_icon.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

double Luminance(QColor color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(QColor one, QColor other) {
  const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
  return (high + 0.05) / (low + 0.05);
}

TEST(ProgramStyle, ShowsWhatIsOffOnLightAndDarkGround) {
  ProgramStyle style(QStringLiteral("fusion"));
  for (const QColor& ground : {QColor(239, 239, 239), QColor(53, 53, 53), QColor(30, 30, 34)}) {
    QPalette palette(ground);
    style.polish(palette);
    const auto off = [&](QPalette::ColorRole role) { return palette.color(QPalette::Disabled, role); };
    EXPECT_GE(Contrast(off(QPalette::Text), off(QPalette::Base)), 4.5);
    QCheckBox check;
    QRadioButton option;
    for (QWidget* box : {static_cast<QWidget*>(&check), static_cast<QWidget*>(&option)}) {
      box->setStyle(&style);
      box->setPalette(palette);
      box->resize(box->sizeHint());
      for (const bool on : {true, false}) {
        box->setEnabled(on);
        const QImage picture = box->grab().toImage();
        double strongest = 1;  // of the rim, on the row through the middle of the box
        for (int x = 0; x < 4; ++x)
          strongest = std::max(strongest, Contrast(picture.pixelColor(x, picture.height() / 2), ground));
        EXPECT_GE(strongest, 3) << box->metaObject()->className() << ground.red() << on;
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
  for (QWidget* focus : {static_cast<QWidget*>(&bar), static_cast<QWidget*>(&list), static_cast<QWidget*>(&box)}) {
    focus->setFocus();
    for (QWidget* widget : window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      const QColor corner = widget->grab().toImage().pixelColor(0, 0);
      EXPECT_EQ(corner == widget->palette().color(QPalette::Highlight), widget == focus && widget != &box);
    }
  }
}

// A picture whose left half is orange and whose right half is empty.
constexpr const char* kHalf =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24"><path d="M0 0h12v24H0z" fill="#ff8000"/></svg>)";

TEST(SvgIcon, IsReadOnceSharpAtAnyScaleAndFaintWhenDisabled) {
  const TempFolder folder;
  const QIcon icon = SvgIcon(Utf8ToQString(folder.File("half.svg")));
  for (const qreal ratio : {1.0, 1.5, 3.0}) {
    const int middle = qRound(12 * ratio);
    const std::string path = folder.Put("half.svg", kHalf);
    const QImage taken = icon.pixmap(QSize(24, 24), ratio).toImage();
    const QColor disabled = icon.pixmap(QSize(24, 24), ratio, QIcon::Disabled).toImage().pixelColor(5, 12);
    std::filesystem::remove(path);
    // A wide rectangle has the square in its middle.
    QImage painted(6 * middle, 2 * middle, QImage::Format_ARGB32_Premultiplied);
    painted.setDevicePixelRatio(ratio);
    painted.fill(Qt::transparent);
    QPainter painter(&painted);
    icon.paint(&painter, 0, 0, 72, 24);
    painter.end();
    EXPECT_EQ(taken.devicePixelRatio(), ratio);
    ASSERT_EQ(taken.size(), QSize(2 * middle, 2 * middle));
    EXPECT_EQ(painted.pixelColor(2 * middle - 1, middle).alpha(), 0) << ratio;
    for (const QImage& image : {taken, painted.copy(2 * middle, 0, 2 * middle, 2 * middle)})
      for (const int x : {0, middle - 1, middle, 2 * middle - 1})
        EXPECT_EQ(image.pixelColor(x, middle), x < middle ? QColor(0xff8000) : QColor(Qt::transparent)) << ratio << x;
    EXPECT_NEAR(disabled.red(), disabled.blue(), 2);
    EXPECT_NEAR(disabled.alpha(), 96, 32);
  }
}

TEST(SvgIcon, OfADamagedOrMissingPictureIsEmptyAndEachOfTheProgramDraws) {
  const TempFolder folder;
  for (const char* svg : {"<svg", "not a picture", ""}) folder.Put("bad " + std::string(svg), svg);
  std::filesystem::create_symlink("nowhere", folder.File("missing"));
  const QDir bad(Utf8ToQString(folder.Path())), icons(QStringLiteral(":/icons"), QStringLiteral("*.svg"));
  EXPECT_GT(icons.count(), 28u);
  for (const QDir& dir : {bad, icons}) {
    for (const QString& name : dir.entryList(QDir::Files | QDir::System)) {
      const QImage image = SvgIcon(dir.filePath(name)).pixmap(24, 24).toImage();
      int drawn = 0;
      for (int at = 0; at < 24 * 24; ++at) drawn += image.pixelColor(at % 24, at / 24).alpha() > 128;
      EXPECT_TRUE(dir == bad ? drawn == 0 : drawn > 24) << name.toStdString();
    }
  }
}

}  // namespace
}  // namespace pelmar
