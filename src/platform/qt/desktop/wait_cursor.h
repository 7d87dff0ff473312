// The waiting pointer of long commands, nested as often as they are. It is lifted while the program asks something,
// so that a person sees an ordinary pointer over a box that waits for them.
#pragma once

#include "platform/platform.h"

namespace pelmar {

class WaitCursor {
 public:
  WaitCursor() = default;
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  ~WaitCursor();

  // Each true wants its false; a false too many does nothing. It looks as the outermost of nested ones.
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
