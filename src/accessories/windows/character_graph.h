// The bar graph of the character analysis, in its own scale of 508 by 196 at any size of the control.
#pragma once

#include <QWidget>
#include <vector>

#include "accessories/analysis.h"

namespace pelmar {

class CharacterGraph : public QWidget {
  Q_OBJECT

 public:
  explicit CharacterGraph(QWidget* parent = nullptr);

  QSize sizeHint() const override { return {kGraphWidth, kGraphHeight}; }

  void Show(std::vector<Bar> bars, bool wide);
  void Clear() { Show({}, wide_); }

 Q_SIGNALS:
  void Pointed(double x);  // the place of the mouse pointer, in the graph's scale

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintBar(QPainter& painter, const Bar& bar) const;

  std::vector<Bar> bars_;
  bool wide_ = true;
};

}  // namespace pelmar
