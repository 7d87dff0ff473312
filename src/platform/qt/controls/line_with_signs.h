// A line edit in which control characters can be seen: the toolkit shows blanks in their place. Each gets a sign over
// its blank, and the tool tip tells their names. The text itself stays as it is.
#pragma once

#include "platform/qt/controls/field.h"

namespace pelmar {

class LineWithSigns : public Field {
  Q_OBJECT

 public:
  explicit LineWithSigns(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace pelmar
