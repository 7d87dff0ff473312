// A label for texts of any length, such as paths and whole clipboards: it keeps the text and draws what fits, on one
// line, with dots where it cuts. It never asks for width.
#pragma once

#include <QLabel>

namespace pelmar {

class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  void setElideMode(Qt::TextElideMode mode);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Qt::TextElideMode mode_ = Qt::ElideMiddle;
};

}  // namespace pelmar
