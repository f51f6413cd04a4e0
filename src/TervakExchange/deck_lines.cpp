#include "TervakExchange/deck_lines.hpp"

#include <algorithm>

namespace Vrsk::Plin::TervakExchange {

namespace {

constexpr const char* BLANKS = " \t";

bool is_end(std::string_view line) { return line.substr(0, 3) == "END"; }

bool is_comment(std::string_view line) {
  return !line.empty() && (line.front() == '*' || line.front() == 'C' || line.front() == 'c');
}

/// Whether a line closes its profile, or was meant to.
bool closes_profile(std::string_view line, std::size_t number, deck_faults& faults) {
  if (is_end(line)) return true;
  if (is_comment(line)) return false;
  // Only a line that begins so is taken apart: decks may be long.
  const auto begin = line.find_first_not_of(BLANKS);
  if (begin == std::string_view::npos || !same_word(line.substr(begin, 3), "END")) return false;
  const deck_field word = split_fields(line, number).fields.front();
  if (!same_word(word.text, "END")) return false;
  faults.add(word.place, shown(word.text) + " does not close a profile; write END in columns 1 to 3");
  return true;
}

}  // namespace

bool same_word(std::string_view word, std::string_view upper) {
  return std::equal(word.begin(), word.end(), upper.begin(), upper.end(), [](char a, char b) {
    return (a >= 'a' && a <= 'z' ? static_cast<char>(a - 'a' + 'A') : a) == b;
  });
}

std::vector<std::string_view> split_lines(std::string_view deck) {
  std::vector<std::string_view> lines;
  while (!deck.empty()) {
    const auto end = deck.find('\n');
    std::string_view line = deck.substr(0, end);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    lines.push_back(line);
    deck.remove_prefix(end == std::string_view::npos ? deck.size() : end + 1);
  }
  return lines;
}

std::vector<profile_lines> split_profiles(const std::vector<std::string_view>& lines, deck_faults& faults) {
  std::vector<profile_lines> profiles;
  const auto line = [&](std::size_t number) { return lines[number - 1]; };
  std::size_t now = 1;
  while (now <= lines.size()) {
    profile_lines profile{static_cast<int>(profiles.size()) + 1, now, now + 1, now + 1};
    for (++now; now <= lines.size() && !closes_profile(line(now), now, faults);) ++now;
    profile.behind_last = now;
    profiles.push_back(profile);
    for (++now; now <= lines.size(); ++now)
      if (!is_end(line(now)) && !split_fields(line(now), now).fields.empty()) break;
  }
  return profiles;
}

deck_statement split_fields(std::string_view line, std::size_t number) {
  deck_statement statement;
  if (is_comment(line)) return statement;
  statement.code = line.substr(0, line.find('!'));
  std::size_t begin = 0;
  while ((begin = statement.code.find_first_not_of(BLANKS, begin)) != std::string_view::npos) {
    const std::size_t end = std::min(statement.code.find_first_of(BLANKS, begin), statement.code.size());
    statement.fields.push_back({statement.code.substr(begin, end - begin), {number, begin + 1, end - begin}});
    begin = end;
  }
  return statement;
}

}  // namespace Vrsk::Plin::TervakExchange
