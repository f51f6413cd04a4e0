// A calculator for the workings of docs/validation.md. It knows nothing of the program's routines.

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <map>
#include <numbers>
#include <sstream>
#include <stdexcept>

#include "validation.hpp"

namespace validation {

namespace {

using values = std::map<std::string, double>;

double function(const std::string& name, const std::vector<double>& x) {
  const double degree = std::numbers::pi / 180.0;
  if (x.size() == 2 && name == "min") return std::min(x[0], x[1]);
  if (x.size() == 2 && name == "max") return std::max(x[0], x[1]);
  if (x.size() == 1) {
    if (name == "sin") return std::sin(x[0] * degree);
    if (name == "cos") return std::cos(x[0] * degree);
    if (name == "tan") return std::tan(x[0] * degree);
    if (name == "atan") return std::atan(x[0]) / degree;
    if (name == "tanh") return std::tanh(x[0]);
    if (name == "exp") return std::exp(x[0]);
    if (name == "ln") return std::log(x[0]);
    if (name == "log10") return std::log10(x[0]);
    if (name == "sqrt") return std::sqrt(x[0]);
  }
  throw std::runtime_error("unknown function " + name);
}

/// Reads one expression from left to right.
class calculator {
 public:
  calculator(const std::string& text, const values& known) : text_(text), known_(known) {}

  double all() {
    const double value = sum();
    if (peek() != '\0') throw std::runtime_error("cannot read \"" + text_ + "\" at " + text_.substr(at_));
    return value;
  }

 private:
  double sum() {
    double value = product();
    for (;;) {
      if (take('+'))
        value += product();
      else if (take('-'))
        value -= product();
      else
        return value;
    }
  }

  double product() {
    double value = sign();
    for (;;) {
      if (take('*'))
        value *= sign();
      else if (take('/'))
        value /= sign();
      else
        return value;
    }
  }

  double sign() { return take('-') ? -sign() : power(); }

  double power() {
    const double base = primary();
    return take('^') ? std::pow(base, sign()) : base;
  }

  double primary() {
    if (take('(')) {
      const double value = sum();
      expect(')');
      return value;
    }
    if (std::isalpha(static_cast<unsigned char>(peek())) != 0) return name();
    std::size_t length = 0;
    const double value = std::stod(text_.substr(at_), &length);
    at_ += length;
    return value;
  }

  double name() {
    std::string word;
    while (at_ < text_.size() && (std::isalnum(static_cast<unsigned char>(text_[at_])) != 0))
      word += text_[at_++];
    if (!take('(')) {
      const auto found = known_.find(word);
      if (found == known_.end()) throw std::runtime_error("unknown name " + word + " in \"" + text_ + "\"");
      return found->second;
    }
    std::vector<double> arguments{sum()};
    while (take(',')) arguments.push_back(sum());
    expect(')');
    return function(word, arguments);
  }

  char peek() {
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
    return at_ < text_.size() ? text_[at_] : '\0';
  }

  bool take(char c) {
    if (peek() != c) return false;
    ++at_;
    return true;
  }

  void expect(char c) {
    if (!take(c)) throw std::runtime_error("expected " + std::string(1, c) + " in \"" + text_ + "\"");
  }

  const std::string& text_;
  const values& known_;
  std::size_t at_ = 0;
};

/// The names of an input and their numbers as they stand in it.
std::map<std::string, std::string> numbers_of(const std::string& input) {
  std::map<std::string, std::string> numbers;
  std::istringstream words(input);
  for (std::string name, value; words >> name >> value;)
    numbers[name] = value.back() == ',' ? value.substr(0, value.size() - 1) : value;
  return numbers;
}

/// An expression with the numbers of the input in place of their names.
std::string put_in(const std::string& expression, const std::map<std::string, std::string>& numbers) {
  std::string result;
  for (std::size_t at = 0; at < expression.size();) {
    std::string word;
    const auto in_word = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '\''; };
    while (at < expression.size() && in_word(expression[at])) word += expression[at++];
    const auto found = numbers.find(word);
    result += found == numbers.end() ? word : found->second;
    if (word.empty()) result += expression[at++];
  }
  return result;
}

}  // namespace

worked work(const std::string& input, const std::string& formula) {
  const auto numbers = numbers_of(input);
  values known{{"pi", std::numbers::pi}};
  worked result{{}, 0.0};
  for (std::size_t at = 0; at < formula.size();) {
    const std::size_t end = std::min(formula.find("; ", at), formula.size());
    const std::string step = formula.substr(at, end - at);
    const std::size_t equals = step.find(" = ");
    if (equals == std::string::npos) throw std::runtime_error("no step: \"" + step + "\"");
    const std::string name = step.substr(0, equals), expression = put_in(step.substr(equals + 3), numbers);
    known[name] = result.value = calculator(expression, known).all();
    char value[32];
    std::snprintf(value, sizeof value, "%.9g", result.value);
    result.steps.push_back(name + " = " + expression +
                           (expression == value ? "" : std::string(" = ") + value));
    at = end + 2;
  }
  return result;
}

}  // namespace validation
