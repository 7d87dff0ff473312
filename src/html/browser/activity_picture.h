// The small picture that moves while a page loads: eight frames, shown one after the other. A disabled picture is grey.
#pragma once

#include <QIcon>
#include <QWidget>
#include <array>

namespace pelmar {

class ActivityPicture : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kFrames = 8;

  explicit ActivityPicture(QWidget* parent = nullptr);

  // Shows the next frame, and the first one after the last.
  void Step();

  QSize sizeHint() const override { return {24, 24}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::array<QIcon, kFrames> frames_;
  int frame_ = 0;
};

}  // namespace pelmar
