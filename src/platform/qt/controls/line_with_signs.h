// A line edit with visible control characters. Qt shows them as blanks. This class draws a sign over each of these
// blanks, and the tool tip names the characters. The text itself is unchanged.
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
