#include "platform/qt/svg_icon.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include "platform/qt/convert.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

// A picture whose left half is orange and whose right half is empty.
constexpr const char* kHalf =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24"><path d="M0 0h12v24H0z" fill="#ff8000"/></svg>)";
const QColor kOrange(0xff8000);

QImage ImageOf(const QIcon& icon, qreal ratio = 1, QIcon::Mode mode = QIcon::Normal) {
  return icon.pixmap(QSize(24, 24), ratio, mode).toImage();
}

struct SvgIconTest : testing::Test {
  TempFolder folder;
  QIcon icon = SvgIcon(Utf8ToQString(folder.File("half.svg")));
};

TEST_F(SvgIconTest, ReadsThePictureOnceAndHasASharpEdgeAtAnyScale) {
  EXPECT_FALSE(icon.isNull());
  for (const qreal ratio : {1.0, 1.5, 2.0, 3.0}) {
    SCOPED_TRACE(ratio);
    const int middle = qRound(12 * ratio);
    const std::string path = folder.Put("half.svg", kHalf);
    const QImage taken = ImageOf(icon, ratio);
    std::filesystem::remove(path);
    EXPECT_EQ(taken.devicePixelRatio(), ratio);
    ASSERT_EQ(taken.size(), QSize(2 * middle, 2 * middle));
    // A wide rectangle has the square in its middle.
    QImage painted(6 * middle, 2 * middle, QImage::Format_ARGB32_Premultiplied);
    painted.setDevicePixelRatio(ratio);
    painted.fill(Qt::transparent);
    QPainter painter(&painted);
    icon.paint(&painter, 0, 0, 72, 24);
    painter.end();
    const QImage square = painted.copy(2 * middle, 0, 2 * middle, 2 * middle);
    EXPECT_EQ(painted.pixelColor(2 * middle - 1, middle).alpha(), 0);
    for (const QImage& image : {taken, square}) {
      for (const int orange : {0, middle - 1}) EXPECT_EQ(image.pixelColor(orange, middle), kOrange);
      for (const int empty : {middle, 2 * middle - 1}) EXPECT_EQ(image.pixelColor(empty, middle).alpha(), 0);
    }
  }
}

TEST_F(SvgIconTest, IsGreyAndFaintWhenDisabled) {
  folder.Put("half.svg", kHalf);
  const QColor disabled = ImageOf(icon, 1, QIcon::Disabled).pixelColor(5, 12);
  EXPECT_NEAR(disabled.red(), disabled.blue(), 2);
  EXPECT_NEAR(disabled.red(), disabled.green(), 2);
  EXPECT_NEAR(disabled.alpha(), 96, 32);
  EXPECT_EQ(ImageOf(icon).pixelColor(5, 12), kOrange);
}

TEST_F(SvgIconTest, DrawsNothingForADamagedOrMissingPicture) {
  for (const char* svg : {"", "<svg", "not a picture"}) {
    const QString path = Utf8ToQString(folder.Put("bad.svg", svg));
    EXPECT_EQ(ImageOf(SvgIcon(path)).pixelColor(5, 12).alpha(), 0) << svg;
  }
  EXPECT_EQ(ImageOf(icon).pixelColor(5, 12).alpha(), 0);
}

TEST(Icons, EveryPictureOfTheProgramDraws) {
  const QStringList names = QDir(QStringLiteral(":/icons")).entryList({QStringLiteral("*.svg")});
  EXPECT_GT(names.size(), 28);
  for (const QString& name : names) {
    const QImage image = ImageOf(SvgIcon(QStringLiteral(":/icons/") + name));
    int drawn = 0;
    for (int at = 0; at < 24 * 24; ++at) drawn += image.pixelColor(at % 24, at / 24).alpha() > 128;
    EXPECT_GT(drawn, 24) << name.toStdString();
  }
}

}  // namespace
}  // namespace pelmar
