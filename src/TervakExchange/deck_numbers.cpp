#include "TervakExchange/deck_numbers.hpp"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

namespace Vrsk::Plin::TervakExchange {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::string_view take_digits(std::string_view& rest) {
  const auto end = std::find_if_not(rest.begin(), rest.end(), is_digit);
  const auto digits = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
  rest.remove_prefix(digits.size());
  return digits;
}

/// Takes the sign off and says whether it was a minus.
bool take_sign(std::string_view& rest) {
  if (rest.empty() || (rest.front() != '+' && rest.front() != '-')) return false;
  const bool minus = rest.front() == '-';
  rest.remove_prefix(1);
  return minus;
}

struct decimal {
  bool minus = false, exponent_minus = false;
  std::string_view whole, fraction, exponent;
};

bool split_decimal(std::string_view text, decimal& d) {
  d.minus = take_sign(text);
  d.whole = take_digits(text);
  if (!text.empty() && text.front() == '.') {
    text.remove_prefix(1);
    d.fraction = take_digits(text);
  }
  if (d.whole.empty() && d.fraction.empty()) return false;
  if (text.empty()) return true;
  if (std::string_view("EeDd").find(text.front()) == std::string_view::npos) return false;
  text.remove_prefix(1);
  d.exponent_minus = take_sign(text);
  d.exponent = take_digits(text);
  return !d.exponent.empty() && text.empty();
}

/// Whether a number that is out of range is too small rather than too large: by the decimal place of its
/// first digit that is not zero.
bool is_tiny(const decimal& d) {
  constexpr long long FAR = 1'000'000'000'000;  // more than any number of digits that fits in memory
  long long power = 0;
  const auto [end, fault] = std::from_chars(d.exponent.data(), d.exponent.data() + d.exponent.size(), power);
  if (fault == std::errc::result_out_of_range || power > FAR) power = FAR;
  if (d.exponent_minus) power = -power;
  const auto first = d.whole.find_first_not_of('0');
  const auto first_behind_point = d.fraction.find_first_not_of('0');
  if (first != std::string_view::npos)
    power += static_cast<long long>(d.whole.size() - first);
  else if (first_behind_point != std::string_view::npos)
    power -= static_cast<long long>(first_behind_point);
  else
    return true;  // nothing but zeros
  return power < 0;
}

}  // namespace

number_fault parse_number(std::string_view text, double& value) {
  decimal d;
  if (!split_decimal(text, d)) return number_fault::syntax;
  std::string plain = d.minus ? "-" : "";
  plain.append(d.whole).append(".").append(d.fraction);
  if (!d.exponent.empty()) plain.append(d.exponent_minus ? "E-" : "E").append(d.exponent);
  double result = 0;
  const auto [end, fault] = std::from_chars(plain.data(), plain.data() + plain.size(), result);
  if (fault == std::errc::result_out_of_range) {
    if (!is_tiny(d)) return number_fault::range;
    result = 0.0;
  } else if (fault != std::errc{} || end != plain.data() + plain.size()) {
    return number_fault::syntax;
  }
  value = result;
  return number_fault::none;
}

number_fault parse_integer(std::string_view text, int& value) {
  std::string_view rest = text;
  take_sign(rest);
  if (rest.empty() || !std::all_of(rest.begin(), rest.end(), is_digit)) return number_fault::syntax;
  if (text.front() == '+') text.remove_prefix(1);
  int result = 0;
  if (std::from_chars(text.data(), text.data() + text.size(), result).ec != std::errc{})
    return number_fault::range;
  value = result;
  return number_fault::none;
}

}  // namespace Vrsk::Plin::TervakExchange
