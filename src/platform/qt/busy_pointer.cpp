#include "platform/qt/busy_pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace pelmar {

BusyPointer::~BusyPointer() {
  if (shown_ && QGuiApplication::instance() != nullptr) QGuiApplication::restoreOverrideCursor();
}

void BusyPointer::Set(bool busy) {
  if (!busy && wanted_ == 0) return;
  wanted_ += busy ? 1 : -1;
  Show();
}

void BusyPointer::Show() {
  const bool show = wanted_ > 0 && lifted_ == 0;
  if (show == shown_) return;
  shown_ = show;
  if (show) {
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

BusyPointer::Lift::Lift(BusyPointer& pointer) : pointer_(pointer) {
  ++pointer_.lifted_;
  pointer_.Show();
}

BusyPointer::Lift::~Lift() {
  --pointer_.lifted_;
  pointer_.Show();
}

}  // namespace pelmar
