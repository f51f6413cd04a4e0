#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tervak::check {

/// What a warning or a message points at in one profile of the deck.
struct deck_target {
  std::string_view keyword;  ///< a scalar, a table or a table of curves
  std::size_t row =
      0;  ///< record of the table as the stages see it, value of DIAM, or curve; from 1, 0 = none
  std::string_view column = {};  ///< name of the column, "" for the whole row
  std::size_t point = 0;         ///< point of a curve, from 1, 0 = its AT
};

}  // namespace tervak::check
