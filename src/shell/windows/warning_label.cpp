#include "shell/windows/unkept_label.h"

#include <QAccessible>

namespace pelmar {

UnkeptLabel::UnkeptLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setObjectName(QStringLiteral("Unkept"));
  setContentsMargins(4, 0, 4, 0);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Highlight);
  setForegroundRole(QPalette::HighlightedText);
}

void UnkeptLabel::SetError(int error) {
  setToolTip(QStringLiteral("Neuložené změny teď nelze zachovat pro případ pádu (kód chyby %1).\n"
                            "Uložte je, nebo uvolněte místo na disku; program to zkouší znovu.")
                 .arg(error));
}

void UnkeptLabel::showEvent(QShowEvent* event) {
  QLabel::showEvent(event);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace pelmar
