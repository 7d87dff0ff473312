// The keys of the on-screen keyboard, the calculator and the converter. A KeyCap is a push button whose caption may
// have several lines. A LatchKey is a check box that looks like a key and stays down while checked. Both may be smaller
// than Qt's own buttons.
#pragma once

#include <QCheckBox>
#include <QPushButton>

namespace pelmar {

class KeyCap : public QPushButton {
  Q_OBJECT

 public:
  explicit KeyCap(QWidget* parent = nullptr) : QPushButton(parent) {}

  QSize sizeHint() const override { return minimumSizeHint(); }
  // The space for the widest word of the caption.
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
