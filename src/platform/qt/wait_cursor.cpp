#include "platform/qt/wait_cursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace pelmar {

WaitCursor::~WaitCursor() {
  if (shown_ && QGuiApplication::instance() != nullptr) QGuiApplication::restoreOverrideCursor();
}

void WaitCursor::Set(bool busy) {
  if (!busy && wanted_ == 0) return;
  wanted_ += busy ? 1 : -1;
  Show();
}

void WaitCursor::Show() {
  const bool show = wanted_ > 0 && lifted_ == 0;
  if (show == shown_) return;
  shown_ = show;
  if (show) {
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

WaitCursor::Lift::Lift(WaitCursor& pointer) : pointer_(pointer) {
  ++pointer_.lifted_;
  pointer_.Show();
}

WaitCursor::Lift::~Lift() {
  --pointer_.lifted_;
  pointer_.Show();
}

}  // namespace pelmar
