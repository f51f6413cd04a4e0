#include "fem/utils/double_to_string.hpp"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "fem/utils/general_to_string.hpp"
#include "fem/utils/list_directed_to_string.hpp"
#include "fem_directory.hpp"
#include "support/text_rows.hpp"

namespace {

std::string e_text(double value, int w, int d, int k, char letter = 'E') {
  fem::utils::e_field field;
  return std::string(fem::utils::double_to_string(field, value, w, d, k, letter));
}

}  // namespace

TEST(DoubleToString, RendersHandWorkedValues) {
  for (const auto& row : rows_of("fem/e_fields.txt")) {
    int w = 0, d = 0, k = 0;
    std::sscanf(row[0].c_str(), "E%d.%d %d", &w, &d, &k);
    EXPECT_EQ(e_text(std::strtod(row[1].c_str(), nullptr), w, d, k), replaced(row[2], "~", " "))
        << row[0] << " " << row[1];
  }
  EXPECT_EQ(e_text(0.0, 12, 3, 0, 'D'), "   0.000D+00");
}

// Up to six significant digits under a field that holds them all: no rounding, so the C library must agree.
TEST(DoubleToString, AgreesWithTheCLibraryWhereNothingIsRounded) {
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

TEST(DoubleToString, ChecksItsArguments) {
  EXPECT_FAILURE(e_text(1.0, 0, 3, 0), "double_to_string.cpp(#): ASSERT(w > 0) failure.");
  EXPECT_FAILURE(e_text(1.0, 256, 3, 0), "double_to_string.cpp(#): ASSERT(w < buffer_capacity) failure.");
  EXPECT_FAILURE(e_text(1.0, 9, -1, 0), "double_to_string.cpp(#): ASSERT(d >= 0) failure.");
}

// clang-format off
TEST(GeneralToString, ShowsFInTheDecimalRangeAndEOutside) {
  for (const auto& [value, text] : {
           std::pair{0.0, "      0.000"}, {0.1, "  0.100E+00"}, {0.1001, "      0.100"}, {0.9994, "      0.999"},
           {0.9996, "       1.00"}, {12.34, "       12.3"}, {-99.94, "      -99.9"}, {99.96, "        100"},
           {999.4, "        999"}, {999.6, "  0.100E+04"}, {1.0e9, "  0.100E+10"}})
    EXPECT_EQ(fem::utils::general_to_string(value, 11, 3, 0), text);
  EXPECT_EQ(fem::utils::general_to_string(-12.5, 5, 3, 0), "*****");  // neither has room
}

TEST(ListDirectedToString, ShowsFifteenDigitsIn23Characters) {
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
