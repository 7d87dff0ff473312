// The desk calculator in the window Kalkul. Its state is three texts: the number shown, the pending operation and the
// first operand. required: a digit typed after a result is appended to the result, unless the result is 0.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace pelmar {

class Calculator {
 public:
  explicit Calculator(Platform& platform) : platform_(platform) {}

  std::string shown = "0";  // the number in the display
  std::string operation;    // the pending operation: + - * / L ^, or empty
  std::string first_operand;

  // Which keys are enabled.
  [[nodiscard]] bool OperatorsOn() const { return operation.empty(); }  // + - * / and log
  // required: x^y stays enabled while "/" or "L" is pending; x^y then replaces the pending operation and its operand
  [[nodiscard]] bool PowerOn() const { return operation.empty() || operation == "/" || operation == "L"; }
  [[nodiscard]] bool EqualsOn() const { return !operation.empty(); }

  void Digit(char digit);
  void Comma();
  void DropLast();
  void DropFirst();
  void Clear() { shown = "0"; }  // the pending operation stays

  // Makes one of + - * / L ^ the pending operation, makes the number the first operand and then shows 0.
  void Operator(char symbol);
  // Computes and ends the pending operation, if there is one. On failure reports the error and keeps the number.
  void Evaluate();

  // These functions replace the number by their result. On failure they report the error, keep the number and drop the
  // pending operation.
  void Square();
  void Absolute();
  void HalfFloor();  // required: rounds down to halves: 2,7 gives 2,5
  void Sine();       // Sine, Cosine, Tangent and Cotangent take degrees
  void Cosine();
  void Tangent();
  void Cotangent();
  // Like the functions above, but on failure shows another message and keeps the pending operation.
  void SquareRoot();

  void Pi() { shown = "3,14159265358979"; }
  void E() { shown = "2.718282"; }  // required: has a point, so no operation can read this number
  void Random();

 private:
  void Apply(double (*function)(double));
  bool Put(double result);
  void ReportNoResult();
  void EndOperation();

  Platform& platform_;
};

// Appends a digit, in the calculator and the converter. The number "0" is replaced.
void AppendDigit(std::string& number, char digit);
// Removes the last character. An empty number becomes "0".
void DropLastDigit(std::string& number);

}  // namespace pelmar
