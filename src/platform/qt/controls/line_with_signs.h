// A line edit with visible control characters. Qt shows them as blanks; this class draws a sign over each blank and
// names them in the tool tip. The text itself is unchanged.
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
