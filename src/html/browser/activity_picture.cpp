#include "html/browser/activity_picture.h"

#include <QPainter>

#include "platform/qt/frames/svg_icon.h"
#include "text/index.h"

namespace pelmar {

ActivityPicture::ActivityPicture(QWidget* parent) : QWidget(parent) {
  for (int number = 1; number <= kFrames; ++number)
    frames_[IndexFromOne(number)] = SvgIcon(QStringLiteral(":/icons/activity%1.svg").arg(number));
}

void ActivityPicture::Step() {
  frame_ = (frame_ + 1) % kFrames;
  update();
}

void ActivityPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QIcon::Mode look = isEnabled() ? QIcon::Normal : QIcon::Disabled;
  frames_[static_cast<std::size_t>(frame_)].paint(&painter, rect(), Qt::AlignCenter, look);
}

}  // namespace pelmar
