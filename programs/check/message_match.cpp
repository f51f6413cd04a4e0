#include "check/message_match.hpp"

#include <algorithm>
#include <charconv>
#include <limits>

namespace tervak::check {

namespace {

void skip_blanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
}

/// Takes a number from the front of the line.
bool take_number(std::string_view& line, bool whole, std::vector<double>& numbers) {
  for (const std::string_view none : {"isNAN", "NAN", "INF", "-INF"})
    if (line.substr(0, none.size()) == none) {
      line.remove_prefix(none.size());
      numbers.push_back(std::numeric_limits<double>::quiet_NaN());
      return true;
    }
  if (const auto stars = std::min(line.find_first_not_of('*'), line.size()); stars > 0) {
    line.remove_prefix(stars);
    numbers.push_back(std::numeric_limits<double>::quiet_NaN());
    return true;
  }
  std::string_view digits = line;
  if (whole) {
    const auto end = digits.find_first_not_of("0123456789", digits.substr(0, 1) == "-" ? 1 : 0);
    const std::string_view rest = digits.substr(std::min(end, digits.size()));
    if (rest.size() > 1 && rest[0] == '.' && rest[1] >= '0' && rest[1] <= '9') return false;
    digits = digits.substr(0, end);
  }
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (end == digits.data() || error == std::errc::invalid_argument) return false;
  numbers.push_back(value);
  line.remove_prefix(static_cast<std::size_t>(end - digits.data()));
  return true;
}

bool matches_rest(std::string_view line, std::string_view record, std::vector<double>& numbers) {
  for (;;) {
    skip_blanks(record);
    skip_blanks(line);
    if (record.empty()) return line.empty();
    if (record.front() != '%' || record.size() < 2) {
      if (line.empty() || line.front() != record.front()) return false;
      line.remove_prefix(1);
      record.remove_prefix(1);
      continue;
    }
    const char kind = record[1];
    record.remove_prefix(2);
    if (kind != 't') {
      if (!take_number(line, kind == 'i', numbers)) return false;
      continue;
    }
    if (record.empty()) return true;
    const std::size_t found = numbers.size();
    for (std::size_t length = 0; length <= line.size(); ++length) {
      if (matches_rest(line.substr(length), record, numbers)) return true;
      numbers.resize(found);
    }
    return false;
  }
}

}  // namespace

bool matches(std::string_view line, std::string_view record, std::vector<double>& numbers) {
  return matches_rest(line, record, numbers);
}

}  // namespace tervak::check
