#include "shell/windows/main/warning_label.h"

#include "platform/error_text.h"
#include "platform/qt/controls/accessible_face.h"
#include "platform/qt/convert.h"

namespace pelmar {

WarningLabel::WarningLabel(QWidget* parent) : ElidedLabel(parent) {
  SetAccessibleRole(*this, QAccessible::Notification);
  setElideMode(Qt::ElideRight);
  setObjectName(QStringLiteral("Warning"));
  setContentsMargins(4, 0, 4, 0);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Highlight);
  setForegroundRole(QPalette::HighlightedText);
}

QSize WarningLabel::sizeHint() const {
  const int whole = fontMetrics().horizontalAdvance(text()) + 1;
  return {contentsMargins().left() + whole + contentsMargins().right(), ElidedLabel::sizeHint().height()};
}

QString UnkeptTip(int error) {
  return QStringLiteral(
             "Neuložené změny teď nelze zachovat pro případ pádu (%1).\n"
             "Uložte je, nebo uvolněte místo na disku; program to zkouší znovu.")
      .arg(Utf8ToQString(ErrorText(error)));
}

}  // namespace pelmar
