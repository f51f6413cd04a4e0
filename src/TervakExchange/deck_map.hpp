#pragma once

#include <cstddef>
#include <vector>

#include "TervakExchange/deck_keywords.hpp"

namespace Vrsk::Plin::TervakExchange {

/// How a record of a table came to be.
enum class record_kind {
  written,   ///< it is a row, or a curve, of the deck
  expanded,  ///< it is one of those that an AT line with a main layer makes
  added,     ///< the reader put it in front of the row, for the layers above it
};

/// The row of the deck from which a record was made.
struct record_origin {
  std::size_t row = 0;  ///< of `keyword_map::rows`, from 0
  record_kind kind = record_kind::written;
};

/// The lines of one keyword. Lines count from 1; the fields of a line are found again by split_fields.
struct keyword_map {
  std::vector<std::size_t> lines;                ///< of the keyword itself; several for DIAM only
  std::vector<std::size_t> rows;                 ///< of a table; the AT lines of a table of curves
  std::vector<std::vector<std::size_t>> points;  ///< of each AT line
  /// One for each record that the stages see, in their order. The record that closes a list of factors has
  /// none.
  std::vector<record_origin> records;
};

/// Where the values of a profile are in the deck.
struct profile_map {
  std::size_t heading = 0;  ///< line
  std::vector<keyword_map> keywords = std::vector<keyword_map>(deck_keywords().size());

  [[nodiscard]] keyword_map& of(const deck_keyword& keyword) {
    return keywords[static_cast<std::size_t>(&keyword - deck_keywords().data())];
  }
  /// By the name of a keyword that exists.
  [[nodiscard]] const keyword_map& of(std::string_view name) const {
    return keywords[static_cast<std::size_t>(find_keyword(name) - deck_keywords().data())];
  }
};

}  // namespace Vrsk::Plin::TervakExchange
