#include "accessories/calculator.h"

#include <cmath>

#include "text/number_text.h"

namespace pelmar {
namespace {

constexpr double kRadian = 3.14159265358979 / 180;

// The value of a typed number. A comma of which all digits are gone is 0, as the "0," is that it comes from.
std::optional<double> Read(std::string_view number) {
  const std::string_view unsigned_part = number.substr(number.starts_with('-') ? 1 : 0);
  return unsigned_part == "," ? 0.0 : ParseNumber(number);
}

// What is not finite stands for what can't be computed.
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
      // To the base 0 every logarithm would come out as 0.
      return b > 0 ? std::log(a) / std::log(b) : std::nan("");
    default:
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

void Calculator::Digit(char digit) { AppendDigit(Cislo, digit); }

void Calculator::Comma() {
  if (Cislo.find(',') == std::string::npos) Cislo += ',';
}

void Calculator::DropLast() { DropLastDigit(Cislo); }

void Calculator::DropFirst() {
  if (!Cislo.empty()) Cislo.erase(0, 1);
  if (Cislo.empty()) Cislo = "0";
}

void Calculator::Operator(char symbol) {
  Label1 = symbol;
  Label2 = Cislo;
  Cislo = "0";
}

bool Calculator::Evaluate() {
  if (Label1.empty()) return true;
  const std::optional<double> a = Read(Label2);
  const std::optional<double> b = Read(Cislo);
  const bool by_zero = a && b && Label1 == "/" && *b == 0;
  const bool done = a && b && !by_zero && Put(Combine(Label1.front(), *a, *b));
  if (by_zero) platform_.Message(MessageType::kOk, "Není možno dělit nulou", "Dělení");
  if (!done && !by_zero) TellNoResult();
  EndOperation();
  return done;
}

bool Calculator::MakeWayFor(char typed) {
  const bool is_operator = std::string_view("+-*/^").find(typed) != std::string_view::npos;
  return !is_operator || Evaluate();
}

void Calculator::EndOperation() {
  Label1.clear();
  Label2.clear();
}

bool Calculator::Put(double result) {
  if (!std::isfinite(result)) return false;
  Cislo = NumberText(result);
  return true;
}

void Calculator::TellNoResult() { platform_.Message(MessageType::kOk, "Výsledek nelze vypočítat", "Kalkulátor"); }

void Calculator::Apply(double (*function)(double)) {
  const std::optional<double> x = Read(Cislo);
  if (x && Put(function(*x))) return;
  TellNoResult();
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
  Apply([](double x) { return std::sin(x * kRadian); });
}

void Calculator::Cosine() {
  Apply([](double x) { return std::cos(x * kRadian); });
}

void Calculator::Tangent() {
  Apply([](double x) { return std::tan(x * kRadian); });
}

void Calculator::Cotangent() {
  Apply([](double x) { return 1 / std::tan(x * kRadian); });
}

void Calculator::SquareRoot() {
  const std::optional<double> x = Read(Cislo);
  if (!x || !Put(std::sqrt(*x))) platform_.Message(MessageType::kOk, "Nelze odmocnit záporné číslo", "Odmocnina");
}

void Calculator::Random() {
  platform_.ReseedRandom();
  const auto drawn = static_cast<float>(platform_.Random());
  // The nearest float of a double just below 1 is 1 itself.
  Cislo = NumberText(drawn < 1 ? drawn : std::nextafter(1.0F, 0.0F));
}

}  // namespace pelmar
