#include "TervakExchange/deck_keywords.hpp"

#include <algorithm>
#include <string>
#include <vector>

namespace Vrsk::Plin::TervakExchange {

namespace {

std::vector<deck_keyword> all_keywords() {
  std::vector<deck_keyword> keywords;
  for (const deck_scalar& scalar : deck_scalars())
    keywords.push_back({scalar.name, scalar.revision, scalar.required, &scalar});
  for (const deck_table* table : deck_tables())
    keywords.push_back({table->name(), table->revision(), table->required(), table});
  for (const deck_curves& curves : deck_curves_tables())
    keywords.push_back({curves.name, BOTH, OPTIONAL, &curves});
  return keywords;
}

bool is_word_character(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

/// Letters added, dropped, changed, or swapped with their neighbour between two words.
std::size_t edit_distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> before(b.size() + 1), last(b.size() + 1), now(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) now[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    before.swap(last);
    last.swap(now);
    now[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t change = a[i - 1] == b[j - 1] ? 0 : 1;
      now[j] = std::min({last[j] + 1, now[j - 1] + 1, last[j - 1] + change});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        now[j] = std::min(now[j], before[j - 2] + 1);
    }
  }
  return now[b.size()];
}

}  // namespace

std::span<const deck_keyword> deck_keywords() {
  static const std::vector<deck_keyword> keywords = all_keywords();
  return keywords;
}

const deck_keyword* find_keyword(std::string_view word) {
  for (const deck_keyword& keyword : deck_keywords())
    if (same_word(word, keyword.name)) return &keyword;
  return nullptr;
}

nearest_keyword find_nearest(std::string_view word, int revision) {
  constexpr std::size_t LONGEST = 30;  // a line of a million letters is no misspelt keyword
  const auto end = std::find_if_not(word.begin(), word.end(), is_word_character);
  const auto head = word.substr(0, static_cast<std::size_t>(end - word.begin()));
  if (const deck_keyword* meant = find_keyword(head)) return {meant, true};  // "GAMWAT=10.05"
  if (word.size() > LONGEST) return {};

  std::string upper(word);
  for (char& c : upper)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  nearest_keyword nearest;
  std::size_t least = 0;
  for (const deck_keyword& keyword : deck_keywords()) {
    const std::size_t distance = edit_distance(upper, keyword.name);
    const std::size_t longest = std::max(upper.size(), keyword.name.size());
    if (distance > longest / 2) continue;
    const bool belongs = keyword.belongs_to(revision);
    const auto* best = nearest.keyword;
    if (best && (belongs == best->belongs_to(revision) ? distance >= least : !belongs)) continue;
    const bool begins = upper.starts_with(keyword.name) || keyword.name.starts_with(upper);
    nearest = {&keyword, begins || distance <= longest / 4};
    least = distance;
  }
  return nearest;
}

}  // namespace Vrsk::Plin::TervakExchange
