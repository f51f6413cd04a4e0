#include "fem/utils/string_to_double.hpp"

#include <cmath>
#include <stdexcept>
#include <utility>

#include "fem_directory.hpp"

using fem::utils::simple_istream_from_std_string;

// The text, decimals, scale, the value, and what is left behind the number.
TEST(StringToDouble, ReadsEachNotation) {
  const struct {
    const char* text;
    int decimals, scale;
    double value;
    const char* rest;
  } rows[] = {
      // clang-format off
      {"12", 0, 0, 12.0, ""}, {" \t\r\n-12.5 x", 0, 0, -12.5, " x"}, {"+.5,", 0, 0, 0.5, ","},
      {"12", 2, 0, 0.12, ""}, {"12.", 2, 0, 12.0, ""}, {"12E1", 2, 0, 1.2, ""}, {"3.0", 2, 1, 0.3, ""},
      {"3.0E0", 2, 1, 3.0, ""}, {"3", 0, -1, 30.0, ""}, {"1.0D+2", 0, 0, 100.0, ""},
      {"1d2", 0, 0, 100.0, ""}, {"1.5e-3z", 0, 0, 0.0015, "z"}, {"1.5-3", 0, 0, 0.0015, ""},
      {"1.5+3E9", 0, 0, 1500.0, "E9"}, {"15-", 0, 0, 15.0, ""}, {"1.2.3", 0, 0, 1.2, ".3"},
      {"00120.0", 0, 0, 120.0, ""}, {"0.00012", 0, 0, 0.00012, ""}, {"0", 0, 0, 0.0, ""},
      {"1E308", 0, 0, 1e308, ""}, {"12345678901234567890123", 0, 0, 12345678901234567e6, ""},
      {"100000000000000000000009", 0, 0, 1e23, ""},
      // clang-format on
  };
  for (const auto& row : rows) {
    simple_istream_from_std_string in(row.text);
    const auto result = fem::utils::string_to_double(in, row.decimals, row.scale);
    EXPECT_FALSE(result.failure) << row.text << " " << *result.failure;
    EXPECT_NEAR(result.value, row.value, 2e-16 * std::fabs(row.value)) << row.text;
    std::string rest;
    for (int c = in.get(); c < 256; c = in.get()) rest += static_cast<char>(c);
    EXPECT_EQ(rest, row.rest) << row.text;
  }
}

// The sum of digit * 10^-n and one product, not the nearest double: 0.3 is (3.0) / 10, 0.7 as well, but
// 8.41 is 8 + 0.4 + 0.01 summed in that order.
TEST(StringToDouble, SumsDigitByDigit) {
  for (const auto& [text, sum] : {std::pair{"8.41", 8 * 1.0 + 4 * 0.1 + 1 * 0.01},
                                  std::pair{"0.379", (3 * 1.0 + 7 * 0.1 + 9 * 0.01) / 10.0}}) {
    simple_istream_from_std_string in(text);
    EXPECT_EQ(fem::utils::string_to_double(in, 0, 0).value, sum) << text;
  }
}

TEST(StringToDouble, TellsWhyThereIsNoNumber) {
  const std::string invalid = "Invalid character while reading floating-point value: ",
                    at_end = "End of input while reading floating-point value.",
                    range = "Out-of-range error while reading floating-point value.";
  const std::pair<const char*, std::string> rows[] = {
      // clang-format off
      {"abc", invalid + "\"a\" (ordinal=97)"}, {"+-5", invalid + "\"-\" (ordinal=45)"},
      {"..5", invalid + "\".\" (ordinal=46)"}, {"1E+x", invalid + "\"x\" (ordinal=120)"},
      {"1E\n", invalid + "ordinal=10"}, {"", at_end}, {" -", at_end}, {"1E", at_end}, {"1E309", range},
      {"0.1E-310", range},
      // clang-format on
  };
  for (const auto& [text, failure] : rows) {
    simple_istream_from_std_string in(text);
    const auto result = fem::utils::string_to_double(in, 0, 0);
    EXPECT_EQ(result.failure.value_or("none"), failure) << text;
    EXPECT_EQ(result.at_end, failure == at_end) << text;
    EXPECT_EQ(result.value, 0.0) << text;
  }
  simple_istream_from_std_string huge("1+99999999999");
  EXPECT_THROW(fem::utils::string_to_double(huge, 0, 0), std::out_of_range);
}

TEST(CharacterDescription, NamesWhatCannotBeSeen) {
  // clang-format off
  for (const auto& [c, text] : {
           std::pair{'~' + 0, "\"~\" (ordinal=126)"}, {' ', "\" \" (ordinal=32)"}, {31, "ordinal=31"},
           {'"', "'\"' (double quote, ordinal=34)"}, {'\'', "\"'\" (single quote, ordinal=39)"},
           {127, "ordinal=127"}, {-1, "ordinal=255"}})
    EXPECT_EQ(fem::utils::character_description(c), text);
  // clang-format on
}
