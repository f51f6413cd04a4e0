#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <map>

#include "TervakExchange/deck_numbers.hpp"
#include "TervakExchange/decks.hpp"

using namespace decks;

namespace {

std::string bytes(const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      result += text[i];
    } else if (text[++i] == 'x') {
      result += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      result += text[i] == 't' ? '\t' : text[i];
    }
  }
  return result;
}

/// The lines that begin with `mark`, each behind the mark and a blank.
std::string take(std::ifstream& file, char mark) {
  std::string text, line;
  while (file.peek() == mark && std::getline(file, line))
    text += bytes(line.size() > 2 ? line.substr(2) : "") + '\n';
  return text;
}

std::string replaced(const std::string& base, std::istringstream& range, const std::string& lines) {
  int first = 0, last = 0;
  range >> first >> last;
  std::istringstream old(base);
  std::string result, line;
  for (int number = 1; std::getline(old, line); ++number) {
    if (number == first) result += lines;
    if (number < first || number > last) result += line + '\n';
    if (number < first && old.peek() == EOF) result += lines;
  }
  return result;
}

template <class Value>
void expect_number(std::istringstream& row, number_fault (*parse)(std::string_view, Value&)) {
  std::string text, expected;
  row >> std::quoted(text) >> expected;
  Value value = 99;
  const number_fault fault = parse(text, value);
  EXPECT_EQ(fault, expected == "syntax"  ? number_fault::syntax
                   : expected == "range" ? number_fault::range
                                         : number_fault::none)
      << text;
  const double wanted = fault == number_fault::none ? std::strtod(expected.c_str(), nullptr) : 99;
  EXPECT_EQ(value, wanted) << text;
  EXPECT_EQ(std::signbit(value), std::signbit(wanted)) << text;
}

TEST(DeckRules, EachCase) {
  std::ifstream file(TERVAK_SOURCE_DIR "/tests/TervakExchange/deck_rules.txt");
  std::map<std::string, std::string> bases{{"4", REVISION4}, {"5", REVISION5}};
  int decks = 0, numbers = 0;
  for (std::string line; std::getline(file, line);) {
    std::istringstream row(line);
    std::string kind, name, base;
    row >> kind;
    if (kind == "number") {
      expect_number(row, parse_number);
      ++numbers;
    } else if (kind == "integer") {
      expect_number(row, parse_integer);
    } else if (kind == "base") {
      row >> name >> base;
      bases[name] = replaced(bases.at(base), row, take(file, '|'));
    } else if (kind == "deck") {
      row >> base;
      const std::string deck = replaced(bases.at(base), row, take(file, '|'));
      const std::string faults = take(file, '>');
      EXPECT_EQ(places(deck), faults.empty() ? "accepted\n" : faults) << deck;
      ++decks;
    }
  }
  EXPECT_GE(decks, 110);
  EXPECT_GE(numbers, 40);
}

}  // namespace
