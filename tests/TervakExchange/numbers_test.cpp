#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "TervakExchange/deck_numbers.hpp"

using namespace Vrsk::Plin::TervakExchange;

TEST(DeckNumbers, Accepted) {
  const struct {
    const char* text;
    double value;
  } rows[] = {{"1.5", 1.5},
              {".5", 0.5},
              {"2.", 2},
              {"-0", 0},
              {"+7", 7},
              {"1E3", 1000},
              {"1.0D-2", 0.01},
              {"1d+2", 100},
              {"2.e1", 20},
              {"0E99999999999999999999", 0},
              {"1.7976931348623157E308", std::numeric_limits<double>::max()},
              {"4.9406564584124654E-324", std::numeric_limits<double>::denorm_min()},
              {"1E-400", 0},
              {"-1E-99999999999999999999", 0},
              {"0.00001E-320", 0}};
  for (const auto& row : rows) {
    double value = 99;
    EXPECT_EQ(parse_number(row.text, value), number_fault::none) << row.text;
    EXPECT_EQ(value, row.value) << row.text;
  }
  double value = 99;
  ASSERT_EQ(parse_number("-1E-400", value), number_fault::none);
  EXPECT_FALSE(std::signbit(value));
}

TEST(DeckNumbers, Refused) {
  for (const char* text :
       {"",     "+",   ".",   "-.",   "1.O",   "1E",   "1E+",   "E5",  "1.5m", "1,5",   "1 5",
        "0x10", "inf", "nan", "-inf", "1.2.3", "1e5e", "1.5+3", "--1", "+-1",  "1_000", "1.5f"}) {
    double value = 99;
    EXPECT_EQ(parse_number(text, value), number_fault::syntax) << text;
    EXPECT_EQ(value, 99) << text;
  }
  for (const char* text : {"1E309", "-1D400", "1E99999999999999999999", "1.8E308", "12345E305"}) {
    double value = 99;
    EXPECT_EQ(parse_number(text, value), number_fault::range) << text;
  }
  double value = 99;
  EXPECT_EQ(parse_number(std::string(400, '9'), value), number_fault::range);
}

TEST(DeckNumbers, Integers) {
  const struct {
    const char* text;
    number_fault fault;
    int value;
  } rows[] = {{"12", number_fault::none, 12},
              {"+3", number_fault::none, 3},
              {"-007", number_fault::none, -7},
              {"2147483647", number_fault::none, 2147483647},
              {"-2147483648", number_fault::none, std::numeric_limits<int>::min()},
              {"2147483648", number_fault::range, 99},
              {"-2147483649", number_fault::range, 99},
              {"99999999999999999999", number_fault::range, 99},
              {"1.", number_fault::syntax, 99},
              {"1E3", number_fault::syntax, 99},
              {"", number_fault::syntax, 99},
              {"-", number_fault::syntax, 99},
              {"+-1", number_fault::syntax, 99},
              {"0x1", number_fault::syntax, 99}};
  for (const auto& row : rows) {
    int value = 99;
    EXPECT_EQ(parse_integer(row.text, value), row.fault) << row.text;
    EXPECT_EQ(value, row.value) << row.text;
  }
}
