#include "accessories/calculator.h"

#include <cmath>

#include "text/number_text.h"

namespace pelmar {
namespace {

constexpr double kDegree = 3.14159265358979 / 180;  // in radians

// The value of a number from the display, nothing if it can't be read. "," and "-," count as 0. They can arise after
// DropFirst or DropLast has removed all digits.
std::optional<double> Read(std::string_view number) {
  const std::string_view unsigned_part = number.substr(number.starts_with('-') ? 1 : 0);
  return unsigned_part == "," ? 0.0 : ParseNumber(number);
}

// A result that is not finite means an error.
double Combine(char symbol, double a, double b) {
  switch (symbol) {
    case '+':
      return a + b;
    case '-':
      return a - b;
    case '*':
      return a * b;
    case '/':
      return a / b;
    case 'L':
      // Without this test the logarithm of a positive number to the base 0 would be 0.
      return b > 0 ? std::log(a) / std::log(b) : std::nan("");
    default:  // '^'
      return std::pow(a, b);
  }
}

}  // namespace

void AppendDigit(std::string& number, char digit) {
  if (number == "0") {
    number = digit;
  } else {
    number += digit;
  }
}

void DropLastDigit(std::string& number) {
  if (!number.empty()) number.pop_back();
  if (number.empty()) number = "0";
}

void Calculator::Digit(char digit) { AppendDigit(shown, digit); }

void Calculator::Comma() {
  if (shown.find(',') == std::string::npos) shown += ',';
}

void Calculator::DropLast() { DropLastDigit(shown); }

void Calculator::DropFirst() {
  if (!shown.empty()) shown.erase(0, 1);
  if (shown.empty()) shown = "0";
}

void Calculator::Operator(char symbol) {
  operation = symbol;
  first_operand = shown;
  shown = "0";
}

void Calculator::Evaluate() {
  if (operation.empty()) return;
  const std::optional<double> a = Read(first_operand);
  const std::optional<double> b = Read(shown);
  if (a && b && operation == "/" && *b == 0)
    platform_.Message(MessageType::kOk, "Není možno dělit nulou", "Dělení");
  else if (!a || !b || !Put(Combine(operation.front(), *a, *b)))
    ReportNoResult();
  EndOperation();
}

void Calculator::EndOperation() {
  operation.clear();
  first_operand.clear();
}

bool Calculator::Put(double result) {
  if (!std::isfinite(result)) return false;
  shown = NumberText(result);
  return true;
}

void Calculator::ReportNoResult() { platform_.Message(MessageType::kOk, "Výsledek nelze vypočítat", "Kalkulátor"); }

void Calculator::Apply(double (*function)(double)) {
  const std::optional<double> x = Read(shown);
  if (x && Put(function(*x))) return;
  ReportNoResult();
  EndOperation();
}

void Calculator::Square() {
  Apply([](double x) { return x * x; });
}

void Calculator::Absolute() {
  Apply([](double x) { return std::abs(x); });
}

void Calculator::HalfFloor() {
  Apply([](double x) { return std::floor(x) + (x - std::floor(x) < 0.5 ? 0 : 0.5); });
}

void Calculator::Sine() {
  Apply([](double x) { return std::sin(x * kDegree); });
}

void Calculator::Cosine() {
  Apply([](double x) { return std::cos(x * kDegree); });
}

void Calculator::Tangent() {
  Apply([](double x) { return std::tan(x * kDegree); });
}

void Calculator::Cotangent() {
  Apply([](double x) { return 1 / std::tan(x * kDegree); });
}

void Calculator::SquareRoot() {
  const std::optional<double> x = Read(shown);
  if (!x || !Put(std::sqrt(*x))) platform_.Message(MessageType::kOk, "Nelze odmocnit záporné číslo", "Odmocnina");
}

void Calculator::Random() {
  platform_.ReseedRandom();
  const auto drawn = static_cast<float>(platform_.Random());
  // A double just below 1 rounds to the float 1, but the shown number stays below 1.
  shown = NumberText(drawn < 1 ? drawn : std::nextafter(1.0F, 0.0F));
}

}  // namespace pelmar
