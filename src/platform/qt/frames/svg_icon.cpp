#include "platform/qt/frames/svg_icon.h"

#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <cmath>
#include <utility>

namespace pelmar {
namespace {

constexpr int kDisabledOpacity = 45;  // percent

// Uses Qt's SVG plug-in, so that the SVG library is loaded at the first paint, not at the start.
QImage Render(const QString& path, int side) {
  QImageReader reader(path, "svg");
  reader.setScaledSize({side, side});
  const QImage image = reader.read();
  if (!image.isNull()) return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QImage empty(side, side, QImage::Format_ARGB32_Premultiplied);
  empty.fill(Qt::transparent);
  return empty;
}

// Makes the image grey and faint. The colours are premultiplied, so they can be averaged and scaled directly.
void MakeDisabled(QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const int grey = qGray(line[x]) * kDisabledOpacity / 100;
      line[x] = qRgba(grey, grey, grey, qAlpha(line[x]) * kDisabledOpacity / 100);
    }
  }
}

class SvgIconEngine final : public QIconEngine {
 public:
  explicit SvgIconEngine(QString path) : path_(std::move(path)) {}

  QString key() const override { return QStringLiteral("pelmar-svg"); }
  QString iconName() override { return {}; }
  QIconEngine* clone() const override { return new SvgIconEngine(*this); }
  bool isNull() override { return path_.isEmpty(); }

  QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
    const int side = std::max(0, std::min(size.width(), size.height()));
    return {side, side};
  }

  // `size` is in device pixels.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const int side = std::min(size.width(), size.height());
    if (side <= 0) return {};
    const bool disabled = mode == QIcon::Disabled;
    const int cache_key = disabled ? -side : side;
    if (const auto known = pixmaps_.constFind(cache_key); known != pixmaps_.constEnd()) return *known;

    QImage image = Render(path_, side);
    if (disabled) MakeDisabled(image);
    return *pixmaps_.insert(cache_key, QPixmap::fromImage(std::move(image)));
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatioF();
    const int side = std::min(rect.width(), rect.height());
    const int device_side = static_cast<int>(std::lround(side * ratio));
    QPixmap picture = pixmap({device_side, device_side}, mode, state);
    if (picture.isNull()) return;
    picture.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2, picture);
  }

 private:
  QString path_;
  QHash<int, QPixmap> pixmaps_;  // by their side in device pixels, negative for disabled icons
};

}  // namespace

QIcon SvgIcon(const QString& resource_path) { return QIcon(new SvgIconEngine(resource_path)); }

void ShowProgramIcon() {
  if (QGuiApplication::windowIcon().isNull())
    QGuiApplication::setWindowIcon(SvgIcon(QStringLiteral(":/icons/pelmar-vex.svg")));
}

}  // namespace pelmar
