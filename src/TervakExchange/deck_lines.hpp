#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "TervakExchange/deck_faults.hpp"

namespace Vrsk::Plin::TervakExchange {

/// The lines of a deck without their line ends, LF or CR LF.
[[nodiscard]] std::vector<std::string_view> split_lines(std::string_view deck);

/// One field of a line, and where it stands.
struct deck_field {
  std::string_view text;
  deck_place place;
};

/// A line of a profile, with the comment behind "!" cut off.
struct deck_statement {
  std::string_view code;
  std::vector<deck_field> fields;  ///< parted by blanks or tabs; never empty
};

/// The lines that belong to one profile: its heading and the range of what follows it, in line numbers from
/// 1.
struct profile_lines {
  int number = 0;  ///< of the profile in the deck, from 1
  std::size_t heading = 0, first = 0, behind_last = 0;
};

/// Finds the profiles of a deck. A line "End" or " END", which closes nothing by the rules, is a fault and is
/// taken as the END that was meant, so that the rest of the deck is judged as the engineer sees it.
[[nodiscard]] std::vector<profile_lines> split_profiles(const std::vector<std::string_view>& lines,
                                                        deck_faults& faults);

/// The fields of line `number`, which may be none: blank lines and comments have no fields.
[[nodiscard]] deck_statement split_fields(std::string_view line, std::size_t number);

/// Whether two words are the same but for the case of their letters; `upper` is in capitals.
[[nodiscard]] bool same_word(std::string_view word, std::string_view upper);

}  // namespace Vrsk::Plin::TervakExchange
