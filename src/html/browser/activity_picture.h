// The small picture that moves while a page loads: eight frames, shown one after the other. It looks off while it
// is disabled.
#pragma once

#include <QIcon>
#include <QWidget>
#include <array>

namespace pelmar {

class ActivityPicture : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int frame READ Frame)

 public:
  static constexpr int kFrames = 8;

  explicit ActivityPicture(QWidget* parent = nullptr);

  // From 0.
  [[nodiscard]] int Frame() const { return frame_; }
  // The next frame; behind the last one comes the first.
  void Step();

  QSize sizeHint() const override { return {24, 24}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::array<QIcon, kFrames> frames_;
  int frame_ = 0;
};

}  // namespace pelmar
