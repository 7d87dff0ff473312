// The label of a warning in the status bar. Assistive technology announces each new warning.
#pragma once

#include "platform/qt/controls/elided_label.h"

namespace pelmar {

class WarningLabel : public ElidedLabel {
  Q_OBJECT

 public:
  explicit WarningLabel(QWidget* parent);

  // The size of the whole text.
  QSize sizeHint() const override;
};

// The tool tip of the warning that unsaved work can't be written to a rescue file. `error` is the errno of the write.
QString UnkeptTip(int error);

}  // namespace pelmar
