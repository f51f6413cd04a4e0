#include "fem/utils/general_to_string.hpp"

#include <cmath>

#include "fem/utils/double_to_string.hpp"
#include "fem/utils/printed_value.hpp"

namespace fem::utils {

namespace {

std::string as_f(double value, int w, int d) {
  const std::string conversion = "%" + std::to_string(w) + "." + std::to_string(d) + "f";
  return std::string(printed_value(conversion.c_str(), value).text());
}

std::string as_e(double value, int w, int d, int k) {
  e_field field;
  return std::string(double_to_string(field, value, w, d, k, 'E'));
}

}  // namespace

std::string general_to_string(double value, int w, int d, int k) {
  const double a = std::fabs(value);
  if (value != 0.0 && a <= 0.1) return as_e(value, w, d, k);
  std::string plain = as_f(value, w, d);
  if (plain.size() > static_cast<std::size_t>(w)) return as_e(value, w, d, k);
  if (value == 0.0) return plain;
  // The bounds take into account that the value is rounded to d digits.
  for (int n = 0; n <= d; ++n) {
    const double power = std::pow(10.0, n);
    const bool at_least = a >= power * 0.1 - 0.5 * std::pow(10.0, n - d - 1);
    if (at_least && a < power - 0.5 * std::pow(10.0, n - d)) return as_f(value, w, d - n);
  }
  return as_e(value, w, d, k);
}

}  // namespace fem::utils
