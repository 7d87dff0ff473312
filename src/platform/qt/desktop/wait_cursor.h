// The mouse pointer during long commands, which may be nested. During a question, Lift restores the ordinary pointer.
#pragma once

#include "platform/platform.h"

namespace pelmar {

class WaitCursor {
 public:
  WaitCursor() = default;
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  ~WaitCursor();

  // Each call with true needs a call with false; extra calls with false do nothing. The outermost call sets the look.
  void Set(bool busy, BusyLook look);

  class Lift {
   public:
    explicit Lift(WaitCursor& pointer);
    Lift(const Lift&) = delete;
    Lift& operator=(const Lift&) = delete;
    ~Lift();

   private:
    WaitCursor& pointer_;
  };

 private:
  void Show();

  int wanted_ = 0;
  int lifted_ = 0;
  bool shown_ = false;
  BusyLook look_{};
};

}  // namespace pelmar
