// The desk calculator behind `Kalkul`. Its whole state is text: the number shown, the operator that waits and its first
// operand. There is no entry state: a digit goes behind a result as behind typed digits, which is required.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace pelmar {

class Calculator {
 public:
  explicit Calculator(Platform& platform) : platform_(platform) {}

  std::string Cislo = "0";  // the number shown, with the decimal comma
  std::string Label1;       // the operator that waits: + - * / L ^
  std::string Label2;       // the first operand, as it stood

  // What can be pressed now.
  [[nodiscard]] bool OperatorsOn() const { return Label1.empty(); }  // + - * / and log
  // required: a division or a logarithm that waits leaves x^y on, which then loses the first operand
  [[nodiscard]] bool PowerOn() const { return Label1.empty() || Label1 == "/" || Label1 == "L"; }
  [[nodiscard]] bool EqualsOn() const { return !Label1.empty(); }

  void Digit(char digit);
  void Comma();
  void DropLast();
  void DropFirst();
  void Clear() { Cislo = "0"; }  // the operator that waits goes on waiting

  // One of + - * / L ^.
  void Operator(char symbol);
  // Who types doesn't look at the keys: where an operator (+ - * / ^) is typed behind another one, also one that the
  // keys on the screen leave on, the operation that waits ends first. False where that failed, and no operator follows.
  bool MakeWayFor(char typed);
  // The operation is over afterwards, also where it failed; the person was told then and the number stays. False then.
  bool Evaluate();

  // Each puts its result in place of the number. Where there is none, the person is told, the number stays, and an
  // operator that waits is given up.
  void Square();
  void Absolute();
  void HalfFloor();  // required: a floor to half steps, 2,7 gives 2,5
  void Sine();       // of degrees, as the other three
  void Cosine();
  void Tangent();
  void Cotangent();
  // Has its own message, and the operator goes on waiting.
  void SquareRoot();

  void Pi() { Cislo = "3,14159265358979"; }
  void E() { Cislo = "2.718282"; }  // required: a point, so the number can't be read again
  void Random();

 private:
  void Apply(double (*function)(double));
  bool Put(double result);
  void TellNoResult();
  void EndOperation();

  Platform& platform_;
};

// Digits as both the calculator and the converter take them: a sole "0" gives way to `digit`, and no "0" follows it.
void AppendDigit(std::string& number, char digit);
// The last character goes; what is left empty becomes "0".
void DropLastDigit(std::string& number);

}  // namespace pelmar
