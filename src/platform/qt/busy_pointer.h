// The waiting pointer of long commands, nested as often as they are. It is lifted while the program asks something,
// so that a person sees an ordinary pointer over a box that waits for them.
#pragma once

namespace pelmar {

class BusyPointer {
 public:
  BusyPointer() = default;
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer();

  // Each true wants its false; a false too many does nothing.
  void Set(bool busy);

  class Lift {
   public:
    explicit Lift(BusyPointer& pointer);
    Lift(const Lift&) = delete;
    Lift& operator=(const Lift&) = delete;
    ~Lift();

   private:
    BusyPointer& pointer_;
  };

 private:
  void Show();

  int wanted_ = 0;
  int lifted_ = 0;
  bool shown_ = false;
};

}  // namespace pelmar
