// The bar graph of the character analysis, in its own scale of 508 by 196 whatever the control's size. It follows the
// mouse and the arrow keys and tells which place of the scale is pointed at.
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "accessories/analysis.h"

namespace pelmar {

class CharacterGraph : public QWidget {
  Q_OBJECT

 public:
  explicit CharacterGraph(QWidget* parent = nullptr);

  QSize sizeHint() const override { return {kGraphWidth, kGraphHeight}; }

  void Show(std::vector<Bar> bars, bool wide);
  void Clear();
  // No place is pointed at.
  void ForgetPlace();

  // The code that is pointed at, 0 where none is, and how high its bar stands, in percent.
  [[nodiscard]] int PointedCode() const;
  [[nodiscard]] int PointedShare() const;
  [[nodiscard]] int LastCode() const;
  void GoTo(int code);

 Q_SIGNALS:
  void Pointed(double x);  // in the graph's scale

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Point(double x);
  void PaintColumn(QPainter& painter, double x, double top, const QColor& color) const;

  std::vector<Bar> bars_;
  std::optional<double> place_;
  bool wide_ = true;
};

}  // namespace pelmar
