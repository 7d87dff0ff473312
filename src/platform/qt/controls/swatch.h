// Controls that show a colour (Swatch, a button), a gradient (GradientBar) and a length (ValueBar).
#pragma once

#include <QAbstractButton>
#include <QColor>

namespace pelmar {

class Swatch : public QAbstractButton {
  Q_OBJECT
  Q_PROPERTY(QColor color READ Color WRITE setColor)

 public:
  explicit Swatch(QWidget* parent = nullptr);

  [[nodiscard]] QColor Color() const { return color_; }
  void setColor(const QColor& color);

  QSize sizeHint() const override { return {28, 22}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor color_ = Qt::black;
};

class GradientBar : public QWidget {
  Q_OBJECT

 public:
  explicit GradientBar(QWidget* parent = nullptr);

  void SetColors(const QColor& top, const QColor& bottom);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor top_ = Qt::black;
  QColor bottom_ = Qt::black;
};

// A bar that begins at the left edge. Its length is a value in twips.
class ValueBar : public QWidget {
  Q_OBJECT

 public:
  explicit ValueBar(QWidget* parent = nullptr);

  void SetTwips(int twips);
  QSize sizeHint() const override { return {104, 18}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int twips_ = 0;
};

}  // namespace pelmar
