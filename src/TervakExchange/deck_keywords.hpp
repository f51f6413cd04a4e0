#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "TervakExchange/deck_curves.hpp"
#include "TervakExchange/deck_scalars.hpp"
#include "TervakExchange/deck_tables.hpp"

namespace Vrsk::Plin::TervakExchange {

/// A word that may open a line of a profile. AT and END are not among them.
struct deck_keyword {
  std::string_view name;
  int revision = BOTH;  ///< 4, 5 or BOTH
  bool required = OPTIONAL;
  std::variant<const deck_scalar*, const deck_table*, const deck_curves*> what;

  [[nodiscard]] bool belongs_to(int profile_revision) const {
    return revision == BOTH || profile_revision == 0 || revision == profile_revision;
  }
};

[[nodiscard]] std::span<const deck_keyword> deck_keywords();

/// The keyword in either case of its letters, or null.
[[nodiscard]] const deck_keyword* find_keyword(std::string_view word);

struct nearest_keyword {
  const deck_keyword* keyword = nullptr;  ///< null when none is near
  bool sure = false;                      ///< the word means it; otherwise it is a guess
};

/// The keyword that is nearest to a misspelt word, one of the profile's revision (0 = unknown) before one of
/// the other.
[[nodiscard]] nearest_keyword find_nearest(std::string_view word, int revision);

}  // namespace Vrsk::Plin::TervakExchange
