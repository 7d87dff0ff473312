#include "platform/qt/controls/dialog_window.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QShowEvent>

#include "platform/qt/outer_geometry.h"

namespace pelmar {

DialogWindow::DialogWindow(QWidget* parent) : QDialog(parent) {}

void DialogWindow::Present() {
  show();
  raise();
  activateWindow();
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
  const QString name = property("cancelButton").toString();
  auto* cancel = name.isEmpty() ? nullptr : findChild<QAbstractButton*>(name);
  if (cancel != nullptr && event->matches(QKeySequence::Cancel)) return cancel->click();
  QDialog::keyPressEvent(event);
}

void DialogWindow::showEvent(QShowEvent* event) {
  if (!centred_ && !event->spontaneous()) {
    centred_ = true;
    CentreOnScreen(*this);
  }
  QDialog::showEvent(event);
}

}  // namespace pelmar
