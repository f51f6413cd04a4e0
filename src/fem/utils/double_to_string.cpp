#include "fem/utils/double_to_string.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>

#include "fem/utils/source_position.hpp"

namespace fem::utils {

namespace {

constexpr int BUFFER_CAPACITY = 256;
constexpr int MAX_DIGITS = 16;

constexpr double POWERS[] = {1.0, 1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7, 1e8,
                             1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16};

constexpr std::uint64_t INTEGER_POWERS[] = {1,
                                            10,
                                            100,
                                            1'000,
                                            10'000,
                                            100'000,
                                            1'000'000,
                                            10'000'000,
                                            100'000'000,
                                            1'000'000'000,
                                            10'000'000'000,
                                            100'000'000'000,
                                            1'000'000'000'000,
                                            10'000'000'000'000,
                                            100'000'000'000'000,
                                            1'000'000'000'000'000,
                                            10'000'000'000'000'000};

struct scaling {
  double power;
  double reciprocal;
  int exponent;
};
constexpr scaling SCALINGS[] = {{1e256, 1e-256, 256}, {1e128, 1e-128, 128}, {1e64, 1e-64, 64},
                                {1e32, 1e-32, 32},    {1e16, 1e-16, 16},    {1e8, 1e-8, 8},
                                {1e4, 0.0001, 4},     {1e2, 0.01, 2},       {1e1, 0.1, 1}};

/// Brings a positive value to 0.1 ... 1 and returns the decimal exponent. The order of the multiplications
/// decides the last digit of ties. The six large steps do nothing to values between 1e-8 and 1e8.
int normalise(double& a) {
  int x = 0;
  if (a > 1.0) {
    for (std::size_t i = a > 1e8 ? 0 : 6; i < std::size(SCALINGS); ++i) {
      if (a > SCALINGS[i].power) {
        a *= SCALINGS[i].reciprocal;
        x += SCALINGS[i].exponent;
      }
    }
    a *= 0.1;
    x += 1;
  } else if (a < 1.0) {
    for (std::size_t i = a < 1e-8 ? 0 : 6; i < std::size(SCALINGS); ++i) {
      if (a < SCALINGS[i].reciprocal) {
        a *= SCALINGS[i].power;
        x -= SCALINGS[i].exponent;
      }
    }
  }
  return x;
}

/// A value as 0.GGGG times 10 to the power of exponent.
struct decimal {
  std::uint64_t digits;
  int exponent;
};

decimal digits_of(double a, int count) {
  int exponent = normalise(a);
  // Half is added in double, with its rounding: the digits printed rest on it.
  auto digits = static_cast<std::uint64_t>(a * POWERS[count] + 0.5);  // NOLINT(bugprone-incorrect-roundings)
  if (digits == INTEGER_POWERS[count]) {
    digits = INTEGER_POWERS[count - 1];
    ++exponent;
  }
  return {digits, exponent};
}

std::string_view stars(e_field& field, std::size_t w) {
  std::fill_n(field.begin(), w, '*');
  return {field.data(), w};
}

/// Writes a field from its right end to the left.
class leftward_writer {
 public:
  leftward_writer(e_field& field, int w) : field_(field), position_(w) {}
  void put(char c) { field_[static_cast<std::size_t>(--position_)] = c; }
  void put_digit(std::uint64_t digit) { put(static_cast<char>('0' + digit)); }
  [[nodiscard]] bool has_room() const { return position_ > 0; }
  void replace_first(char c) { field_.front() = c; }
  void fill_blank() {
    while (has_room()) put(' ');
  }

 private:
  e_field& field_;
  int position_;
};

void put_exponent(leftward_writer& out, int exponent, char letter) {
  int left = std::abs(exponent);
  int count = 0;
  for (; count < 2 || left > 0; ++count) {
    out.put_digit(static_cast<std::uint64_t>(left % 10));
    left /= 10;
  }
  out.put(exponent < 0 ? '-' : '+');
  if (count == 2) out.put(letter);
}

/// False where the field has no room for all that must stand in it.
bool put_mantissa(leftward_writer& out, std::uint64_t digits, int zeros, int fraction_digits, bool negative) {
  for (int i = 0; i < fraction_digits; ++i) {
    if (zeros > 0) {
      --zeros;
      out.put('0');
    } else {
      out.put_digit(digits % 10);
      digits /= 10;
    }
  }
  out.put('.');
  const bool leading_zero = digits == 0 && zeros == 0 && out.has_room();
  if (leading_zero) out.put('0');
  for (; zeros > 0 && out.has_room(); --zeros) out.put('0');
  for (; digits > 0 && out.has_room(); digits /= 10) out.put_digit(digits % 10);
  if (digits > 0 || zeros > 0) return false;
  if (negative) {
    if (out.has_room())
      out.put('-');
    else if (leading_zero)
      out.replace_first('-');  // the zero gives way: "-.5000E+00"
    else
      return false;
  }
  out.fill_blank();
  return true;
}

std::string_view zero(e_field& field, int w, int d, char letter) {
  leftward_writer out(field, w);
  for (const char c : {'0', '0', '+', letter}) out.put(c);
  for (int i = 0; i < d; ++i) out.put('0');
  out.put('.');
  if (out.has_room()) out.put('0');
  out.fill_blank();
  return {field.data(), static_cast<std::size_t>(w)};
}

}  // namespace

std::string_view double_to_string(e_field& field, double value, int w, int d, int k, char letter) {
  if (!(w > 0)) assertion_failed("w > 0");
  if (!(w < BUFFER_CAPACITY)) assertion_failed("w < buffer_capacity");
  if (!(d >= 0)) assertion_failed("d >= 0");
  const auto size = static_cast<std::size_t>(w);
  if (d >= BUFFER_CAPACITY) return stars(field, size);  // fits no field, and the sums below stay in range

  const int total = k > 0 ? d + 1 : k < 0 ? d + k : d;
  const int fraction = k > 0 ? d - k + 1 : d;
  if (value == 0.0) {
    if (w < d + 5 || d == 0 || total < 1) return stars(field, size);
    return zero(field, w, d, letter);
  }
  const bool negative = value < 0.0;
  if (w < total + (negative ? 6 : 5) || d == 0 || total < 1 || fraction < 0) return stars(field, size);
  // A negative scale factor puts zeros behind the point, which need room too. Nor has an infinity digits.
  if (w < fraction + (negative ? 6 : 5) || !std::isfinite(value)) return stars(field, size);

  const int count = std::min(total, MAX_DIGITS);
  const decimal scaled = digits_of(std::fabs(value), count);
  leftward_writer out(field, w);
  put_exponent(out, scaled.exponent - k, letter);
  if (!put_mantissa(out, scaled.digits, total - count, fraction, negative)) return stars(field, size);
  return {field.data(), size};
}

}  // namespace fem::utils
