// A label for texts of any length, such as paths and the text of the clipboard. The label draws one line and replaces
// the part that doesn't fit by an ellipsis. Its minimum width is 0, so a long text never widens the window.
#pragma once

#include <QLabel>

namespace pelmar {

class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  void setElideMode(Qt::TextElideMode mode) { mode_ = mode; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Qt::TextElideMode mode_ = Qt::ElideMiddle;
};

}  // namespace pelmar
