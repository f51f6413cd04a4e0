#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "check/explain.hpp"
#include "check/rules.hpp"

namespace tervak::check {

/// A value of the deck that is allowed and hardly meant.
struct warning {
  std::string_view rule;
  deck_place place;
  std::string text;  ///< `FILE:line:column: warning: text [rule-name]`, line, caret
};

/// What the reader of the deck and the rules find.
struct deck_report {
  std::size_t fault_count = 0;
  std::string faults;             ///< the text of the refusal, 20 faults at most; "" for a deck that is read
  std::vector<warning> warnings;  ///< in the order of the file
};

/// Reads a deck under the name that is given. One that is not there is a reading with a fault. Throws
/// std::runtime_error for a file that cannot be read, such as a FIFO, for which it does not wait.
[[nodiscard]] std::unique_ptr<const deck_reading> read_deck(const std::filesystem::path& deck);

/// `accepted` are names of rules that are passed over.
[[nodiscard]] deck_report check_deck(const deck_reading& deck,
                                     const std::set<std::string, std::less<>>& accepted = {});

/// Of the warnings and explanations, those that a warning tells already point at the same line: the log's
/// warning of a main layer without axial load, for one, is that of the rule no-axial.
[[nodiscard]] bool told_by(const explanation& message, const std::vector<warning>& warnings);

}  // namespace tervak::check
