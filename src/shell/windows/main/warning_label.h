// A warning that stands for as long as what it says holds, told to assistive technology each time it comes up.
#pragma once

#include "platform/qt/controls/elided_label.h"

namespace pelmar {

class WarningLabel : public ElidedLabel {
  Q_OBJECT

 public:
  explicit WarningLabel(QWidget* parent);

  // What the whole text needs.
  QSize sizeHint() const override;
};

// The tool-tip of a warning that unsaved work can't be kept in a rescue file just now, as on a full disk; with the
// errno of the failed write.
QString UnkeptTip(int error);

}  // namespace pelmar
