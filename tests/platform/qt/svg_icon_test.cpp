#include "platform/qt/svg_icon.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTemporaryDir>

namespace pelmar {
namespace {

// A picture whose left half is orange and whose right half is empty.
constexpr const char* kHalf =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24"><path d="M0 0h12v24H0z" fill="#ff8000"/></svg>)";

class SvgIconTest : public testing::Test {
 protected:
  QString Path() const { return folder_.filePath(QStringLiteral("half.svg")); }
  void WritePicture(const char* svg) const {
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(svg);
  }

  QTemporaryDir folder_;
};

QImage ImageOf(const QIcon& icon, int side, qreal ratio = 1, QIcon::Mode mode = QIcon::Normal) {
  return icon.pixmap(QSize(side, side), ratio, mode).toImage();
}

TEST_F(SvgIconTest, ReadsThePictureAtTheFirstPaintOnlyAndOnce) {
  const QIcon icon = SvgIcon(Path());
  EXPECT_FALSE(icon.isNull());
  WritePicture(kHalf);
  const QImage first = ImageOf(icon, 24);
  EXPECT_EQ(first.pixelColor(5, 12), QColor(0xff8000));

  QFile::remove(Path());
  EXPECT_EQ(ImageOf(icon, 24), first);
  EXPECT_EQ(ImageOf(QIcon(icon), 24), first);
}

TEST_F(SvgIconTest, HasASharpEdgeAtAnyScale) {
  WritePicture(kHalf);
  const QIcon icon = SvgIcon(Path());
  for (const qreal ratio : {1.0, 1.5, 2.0, 3.0}) {
    SCOPED_TRACE(ratio);
    const int side = qRound(24 * ratio);
    const QImage taken = ImageOf(icon, 24, ratio);
    ASSERT_EQ(taken.size(), QSize(side, side));
    EXPECT_EQ(taken.devicePixelRatio(), ratio);

    QImage painted(side, side, QImage::Format_ARGB32_Premultiplied);
    painted.setDevicePixelRatio(ratio);
    painted.fill(Qt::transparent);
    QPainter painter(&painted);
    icon.paint(&painter, 0, 0, 24, 24);
    painter.end();
    for (const QImage& image : {taken, painted}) {
      EXPECT_EQ(image.pixelColor(side / 2 - 1, side / 2), QColor(0xff8000));
      EXPECT_EQ(image.pixelColor(side / 2, side / 2).alpha(), 0);
    }
  }
}

TEST_F(SvgIconTest, StaysSquareInTheMiddleOfAWideRectangle) {
  WritePicture(kHalf);
  QImage image(60, 20, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  SvgIcon(Path()).paint(&painter, image.rect());
  painter.end();
  EXPECT_EQ(image.pixelColor(19, 10).alpha(), 0);
  EXPECT_EQ(image.pixelColor(20, 10).alpha(), 255);
  EXPECT_EQ(image.pixelColor(29, 10).alpha(), 255);
  EXPECT_EQ(image.pixelColor(30, 10).alpha(), 0);
}

TEST_F(SvgIconTest, IsGreyAndFaintWhenDisabled) {
  WritePicture(kHalf);
  const QIcon icon = SvgIcon(Path());
  const QColor normal = ImageOf(icon, 24).pixelColor(5, 12);
  const QColor disabled = ImageOf(icon, 24, 1, QIcon::Disabled).pixelColor(5, 12);
  EXPECT_NEAR(disabled.red(), disabled.blue(), 2);
  EXPECT_NEAR(disabled.red(), disabled.green(), 2);
  EXPECT_LT(disabled.alpha(), 128);
  EXPECT_GT(disabled.alpha(), 64);
  EXPECT_EQ(ImageOf(icon, 24).pixelColor(5, 12), normal);
}

TEST_F(SvgIconTest, DrawsNothingForADamagedOrMissingPicture) {
  for (const char* svg : {"", "<svg", "not a picture"}) {
    WritePicture(svg);
    EXPECT_EQ(ImageOf(SvgIcon(Path()), 24).pixelColor(5, 12).alpha(), 0) << svg;
  }
  EXPECT_EQ(ImageOf(SvgIcon(QStringLiteral(":/icons/none.svg")), 24).pixelColor(5, 12).alpha(), 0);
}

TEST(Icons, EveryToolbarKeyHasAPictureThatDraws) {
  const char* const names[] = {"new",  "newhtml", "open",  "recent", "save",      "cut",     "copy",  "paste",
                               "find", "image",   "bold",  "italic", "underline", "center",  "table", "link",
                               "line", "help",    "print", "dos",    "lock",      "browser", "back",  "forward",
                               "stop", "refresh", "close", "dock",   "pelmar-vex"};
  for (const char* name : names) {
    const QImage image = ImageOf(SvgIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name))), 24);
    ASSERT_EQ(image.size(), QSize(24, 24));
    int drawn = 0;
    for (int y = 0; y < 24; ++y)
      for (int x = 0; x < 24; ++x) drawn += image.pixelColor(x, y).alpha() > 128;
    EXPECT_GT(drawn, 24) << name;
  }
}

}  // namespace
}  // namespace pelmar
