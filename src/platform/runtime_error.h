// The only exception class that the program defines.
#pragma once

#include <stdexcept>
#include <string>

namespace pelmar {

// An error after which a command can't go on. If nobody catches the error, the program keeps the unsaved documents and
// notes, reports the error and ends. The number is an errno.
class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(int number, const std::string& text) : std::runtime_error(text), number_(number) {}
  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

}  // namespace pelmar
