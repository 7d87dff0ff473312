// The states that the status bar shows of Caps Lock, Num Lock and Insert.
#pragma once

#include <QObject>

namespace pelmar {

struct LockKeys {
  bool caps = false;
  bool num = false;
};

// From the X server, one round trip; both false where there is none.
LockKeys ReadLockKeys();

// Insert has no lamp: the state is our own, and turns with each press of the bare key in a window of the program.
class InsertKey : public QObject {
  Q_OBJECT

 public:
  // Watches the application's events until it is destroyed.
  InsertKey();

  [[nodiscard]] bool IsOn() const { return on_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool on_ = false;
  const QEvent* counted_ = nullptr;  // Compared only, and only until the key is released.
  quint64 counted_at_ = 0;
};

}  // namespace pelmar
