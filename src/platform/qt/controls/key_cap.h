// Keys of a keyboard on the screen: a push button whose caption may run over several lines, and a check box that looks
// like a key and stays down while it is checked. Both fill the cell that a layout gives them, however small it is.
#pragma once

#include <QCheckBox>
#include <QPushButton>

namespace pelmar {

class KeyCap : public QPushButton {
  Q_OBJECT

 public:
  explicit KeyCap(QWidget* parent = nullptr) : QPushButton(parent) {}

  QSize sizeHint() const override { return minimumSizeHint(); }
  // What the longest word of the caption needs.
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

class LatchKey : public QCheckBox {
  Q_OBJECT

 public:
  explicit LatchKey(QWidget* parent = nullptr) : QCheckBox(parent) {}

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& point) const override { return rect().contains(point); }
};

}  // namespace pelmar
