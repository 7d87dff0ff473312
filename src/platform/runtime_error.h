// The one exception of the program.
#pragma once

#include <stdexcept>
#include <string>

namespace pelmar {

// An error that a command didn't expect. Where nobody catches it, the program keeps the modified documents in a rescue
// file, tells the user and ends. The number is an errno.
class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(int number, const std::string& text) : std::runtime_error(text), number_(number) {}
  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

}  // namespace pelmar
