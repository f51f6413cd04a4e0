#include "fem/utils/string_to_double.hpp"

#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "fem/utils/digits.hpp"

namespace fem::utils {

namespace {

constexpr double NEGATIVE_POWERS[] = {1.0,  0.1,   1e-2,  1e-3,  1e-4,  1e-5,  1e-6,  1e-7, 1e-8,
                                      1e-9, 1e-10, 1e-11, 1e-12, 1e-13, 1e-14, 1e-15, 1e-16};
constexpr double BINARY_POWERS[] = {1e1, 1e2, 1e4, 1e8, 1e16, 1e32, 1e64, 1e128, 1e256};

bool is_white(int c) { return c == '\t' || c == '\n' || c == '\r' || c == ' '; }

double power_of_ten(std::int64_t exponent) {
  double power = 1.0;
  for (const double factor : BINARY_POWERS) {
    if (exponent % 2 != 0) power *= factor;
    exponent /= 2;
  }
  return exponent == 0 ? power : HUGE_VAL;
}

/// One number on its way in: sum times 10 to the power of exponent.
class number_parser {
 public:
  explicit number_parser(simple_istream& in) : in_(in) {}
  number_result parse(int decimals, int scale);

 private:
  void take_digits();
  void take_digit(int digit);
  void take_letterless_exponent();
  bool take_exponent(std::int64_t& x);
  void fail_with(int c);
  void next() { c_ = in_.get(); }

  simple_istream& in_;
  number_result result_;
  int c_ = 0;  ///< the character at hand
  double sum_ = 0.0;
  std::int64_t exponent_ = -1;
  int significant_ = 0;
  bool point_seen_ = false;
  bool digit_seen_ = false;
  bool nonzero_seen_ = false;
};

void number_parser::fail_with(int c) {
  result_.value = 0.0;
  result_.at_end = c == END_OF_INPUT;
  if (c == END_OF_INPUT)
    result_.failure = "End of input while reading floating-point value.";
  else if (c == READ_ERROR)
    result_.failure = "Input error while reading floating-point value.";
  else
    result_.failure = "Invalid character while reading floating-point value: " + character_description(c);
}

void number_parser::take_digit(int digit) {
  digit_seen_ = true;
  if (digit == 0 && !nonzero_seen_) {
    if (point_seen_) --exponent_;
    return;
  }
  // Digits beyond the seventeenth are dropped, their places still count.
  if (digit != 0) {
    nonzero_seen_ = true;
    if (significant_ <= 16) sum_ += digit * NEGATIVE_POWERS[significant_];
  }
  ++significant_;
  if (!point_seen_) ++exponent_;
}

void number_parser::take_digits() {
  for (;; next()) {
    if (is_digit(c_))
      take_digit(c_ - '0');
    else if (c_ == '.' && !point_seen_)
      point_seen_ = true;
    else
      return;
  }
}

/// "1.5-3" is 1.5E-3.
void number_parser::take_letterless_exponent() {
  std::string text(1, static_cast<char>(c_));
  for (next(); is_digit(c_); next()) text += static_cast<char>(c_);
  if (text.size() > 1) sum_ *= std::pow(10.0, std::stoi(text));
}

bool number_parser::take_exponent(std::int64_t& x) {
  next();
  const bool negative = c_ == '-';
  if (c_ == '-' || c_ == '+') next();
  if (!is_digit(c_)) {
    fail_with(c_);
    return false;
  }
  for (; is_digit(c_); next()) {
    x = 10 * x + (c_ - '0');
    if (x > std::abs(exponent_) + 308) {
      result_.failure = "Out-of-range error while reading floating-point value.";
      return false;
    }
  }
  if (negative) x = -x;
  return true;
}

number_result number_parser::parse(int decimals, int scale) {
  do next();
  while (is_white(c_));
  const bool negative = c_ == '-';
  if (c_ == '-' || c_ == '+') next();
  take_digits();
  const bool letterless = digit_seen_ && (c_ == '+' || c_ == '-');
  if (letterless) take_letterless_exponent();
  if (!digit_seen_) {
    fail_with(c_);
    return result_;
  }
  if (negative) sum_ = -sum_;
  if (!point_seen_) exponent_ -= decimals;

  std::int64_t x = 0;
  if (!letterless && (c_ == 'D' || c_ == 'E' || c_ == 'd' || c_ == 'e')) {
    if (!take_exponent(x)) return result_;
  } else {
    x = -std::int64_t{scale};
  }
  if (c_ < END_OF_INPUT) in_.backup();
  const std::int64_t total = x + exponent_;
  const double power = power_of_ten(std::abs(total));
  result_.value = total >= 0 ? sum_ * power : sum_ / power;
  return result_;
}

}  // namespace

number_result string_to_double(simple_istream& in, int decimals, int scale) {
  return number_parser(in).parse(decimals, scale);
}

std::string character_description(int c) {
  if (c < 0) c += 256;
  std::string ordinal = "ordinal=" + std::to_string(c);
  if (c == '"') return "'\"' (double quote, " + ordinal + ")";
  if (c == '\'') return "\"'\" (single quote, " + ordinal + ")";
  if (c < 32 || c > 126) return ordinal;
  return "\"" + std::string(1, static_cast<char>(c)) + "\" (" + ordinal + ")";
}

}  // namespace fem::utils
