// The bar graph of the character analysis, in its own scale of 508 by 196 at any size of the control. The mouse and the
// arrow keys mark a place on the scale.
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
  // Removes the mark.
  void ForgetPlace();

  // The code at the mark, 0 without a mark, and the height of its bar in percent.
  [[nodiscard]] int PointedCode() const;
  [[nodiscard]] int PointedShare() const;
  [[nodiscard]] int LastCode() const;
  void GoTo(int code);

 Q_SIGNALS:
  void Pointed(double x);  // the marked place, in the graph's scale

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
