#include "fem/utils/double_to_string.hpp"

#include <cmath>
#include <cstdio>
#include <limits>
#include <utility>

#include "fem/utils/general_to_string.hpp"
#include "fem/utils/list_directed_to_string.hpp"
#include "fem_directory.hpp"

namespace {

std::string e_text(double value, int w, int d, int k, char letter = 'E') {
  fem::utils::e_field field;
  return std::string(fem::utils::double_to_string(field, value, w, d, k, letter));
}

}  // namespace

// Worked by hand: value, field width, digits, scale factor. In this order: zeros; scale factors; ties, which
// go up where the C library goes to the even digit; carries; narrow fields, in which the zero ahead of the
// point goes first, then everything; exponents of three digits; digits beyond the sixteenth; infinities.
TEST(double_to_string, renders_hand_worked_values) {
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    double value;
    int w, d, k;
    const char* text;
  } rows[] = {
      // clang-format off
      {0.0, 12, 3, 0, "   0.000E+00"}, {-0.0, 12, 3, 0, "   0.000E+00"}, {0.0, 12, 3, 1, "   0.000E+00"},
      {0.0, 8, 3, 0, ".000E+00"}, {0.0, 7, 3, 0, "*******"}, {0.0, 9, 0, 0, "*********"},
      {0.0, 9, 3, -3, "*********"}, {1230.0, 12, 3, 0, "   0.123E+04"}, {1230.0, 12, 3, 1, "   1.230E+03"},
      {1230.0, 12, 3, 2, "   12.30E+02"}, {1230.0, 12, 3, 4, "   1230.E+00"},
      {1230.0, 12, 3, 5, "************"}, {1230.0, 12, 3, -1, "   0.012E+05"},
      {1230.0, 12, 3, -3, "************"}, {1234.5678, 16, 8, 0, "  0.12345678E+04"},
      {1.0, 12, 4, 0, "  0.1000E+01"}, {10.0, 12, 4, 0, "  0.1000E+02"}, {0.1, 12, 4, 0, "  0.1000E+00"},
      {0.125, 10, 2, 0, "  0.13E+00"}, {-0.125, 10, 2, 0, " -0.13E+00"}, {0.625, 10, 2, 1, "  6.25E-01"},
      {1234.5, 12, 3, 1, "   1.235E+03"}, {0.9996, 10, 3, 0, " 0.100E+01"},
      {-0.99995, 10, 4, 0, "-.1000E+01"}, {9.9996, 11, 3, 1, "  1.000E+01"},
      {0.0999996, 10, 3, 0, " 0.100E+00"}, {0.5, 11, 4, 0, " 0.5000E+00"}, {0.5, 10, 4, 0, "0.5000E+00"},
      {0.5, 9, 4, 0, ".5000E+00"}, {0.5, 8, 4, 0, "********"}, {-0.5, 11, 4, 0, "-0.5000E+00"},
      {-0.5, 10, 4, 0, "-.5000E+00"}, {-0.5, 9, 4, 0, "*********"}, {0.5, 9, 0, 0, "*********"},
      {-1230.0, 10, 3, 1, "-1.230E+03"}, {-1230.0, 9, 3, 1, "*********"}, {1230.0, 8, 4, -1, "********"},
      {-1230.0, 10, 4, -1, "-.0123E+05"}, {1.0e-101, 12, 4, 0, "  0.1000-100"},
      {1.5e100, 13, 4, 0, "   0.1500+101"}, {1.5e100, 13, 4, 1, "   1.5000+100"},
      {1.5e99, 13, 4, 1, "   1.5000E+99"}, {-1.5e100, 10, 4, 0, "-.1500+101"},
      {std::numeric_limits<double>::max(), 12, 3, 0, "   0.180+309"},
      {std::numeric_limits<double>::denorm_min(), 12, 3, 0, "   0.494-323"},
      {1.0 / 3.0, 26, 18, 0, "  0.333333333333333300E+00"},
      {1.0 / 3.0, 26, 18, 4, "  3333.333333333333000E-04"},
      {0.25, 27, 20, 20, " 25000000000000000000.0E-20"}, {infinity, 6, 3, 0, "******"},
      {-infinity, 12, 3, 0, "************"}, {1.0, 255, 300, -290, "*"},
      // clang-format on
  };
  for (const auto& row : rows) {
    const std::string text = row.w == 255 ? std::string(255, '*') : row.text;
    EXPECT_EQ(e_text(row.value, row.w, row.d, row.k), text)
        << row.value << " " << row.k << "p,e" << row.w << "." << row.d;
  }
  EXPECT_EQ(e_text(0.0, 12, 3, 0, 'D'), "   0.000D+00");
}

// Up to six significant digits under a field that holds them all: no rounding, so the C library must agree.
TEST(double_to_string, agrees_with_the_c_library_where_nothing_is_rounded) {
  for (int exponent = -300; exponent <= 300; exponent += 3) {
    for (int mantissa = 1; mantissa <= 999999; mantissa = mantissa * 3 + exponent % 7 + 7) {
      const double value =
          std::strtod((std::to_string(mantissa) + "e" + std::to_string(exponent)).c_str(), nullptr);
      char expected[32];
      std::snprintf(expected, sizeof expected, "%15.5E", -value);
      std::string text = expected;
      if (text[10] == 'E') text.erase(10, 1).insert(0, " ");  // an exponent of three digits has no letter
      ASSERT_EQ(e_text(-value, 15, 5, 1), text) << value;
    }
  }
}

TEST(double_to_string, checks_its_arguments) {
  EXPECT_FAILURE(e_text(1.0, 0, 3, 0), "double_to_string.cpp(#): ASSERT(w > 0) failure.");
  EXPECT_FAILURE(e_text(1.0, 256, 3, 0), "double_to_string.cpp(#): ASSERT(w < buffer_capacity) failure.");
  EXPECT_FAILURE(e_text(1.0, 9, -1, 0), "double_to_string.cpp(#): ASSERT(d >= 0) failure.");
}

// clang-format off
TEST(general_to_string, shows_f_in_the_decimal_range_and_e_outside) {
  for (const auto& [value, text] : {
           std::pair{0.0, "      0.000"}, {0.1, "  0.100E+00"}, {0.1001, "      0.100"}, {0.9994, "      0.999"},
           {0.9996, "       1.00"}, {12.34, "       12.3"}, {-99.94, "      -99.9"}, {99.96, "        100"},
           {999.4, "        999"}, {999.6, "  0.100E+04"}, {1.0e9, "  0.100E+10"}})
    EXPECT_EQ(fem::utils::general_to_string(value, 11, 3, 0), text);
  EXPECT_EQ(fem::utils::general_to_string(-12.5, 5, 3, 0), "*****");  // neither has room
}

TEST(list_directed_to_string, shows_fifteen_digits_in_23_characters) {
  for (const auto& [value, text] : {
           std::pair{0.0, " 0.000000000000000E+000"}, {-0.05, "-5.000000000000000E-002"},
           {0.1, " 0.100000000000000     "}, {0.5, " 0.500000000000000     "}, {1.0, "  1.00000000000000     "},
           {-12.5, " -12.5000000000000     "}, {123456.0, "  123456.000000000     "},
           {1e8, "  100000000.000000     "}, {12345678901234.0, "  12345678901234.0     "},
           {123456789012345.0, "  123456789012345.     "}, {1e15, " 1.000000000000000E+015"},
           {1e100, " 1.000000000000000E+100"}, {std::nan(""), "                    NAN"}})
    EXPECT_EQ(fem::utils::list_directed_to_string(value), text);
}
// clang-format on
