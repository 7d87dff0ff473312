#include "platform/qt/desktop/wait_cursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace pelmar {

WaitCursor::~WaitCursor() {
  if (shown_ && QGuiApplication::instance() != nullptr) QGuiApplication::restoreOverrideCursor();
}

void WaitCursor::Set(bool busy, BusyLook look) {
  if (!busy && wanted_ == 0) return;
  if (wanted_ == 0) look_ = look;
  wanted_ += busy ? 1 : -1;
  Show();
}

void WaitCursor::Show() {
  const bool show = wanted_ > 0 && lifted_ == 0;
  if (show == shown_) return;
  shown_ = show;
  if (show) {
    QGuiApplication::setOverrideCursor(QCursor(look_ == BusyLook::kHourglass ? Qt::WaitCursor : Qt::BusyCursor));
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
