#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/log_messages.hpp"
#include "check/places.hpp"

namespace tervak::check {

/// At most so many places are shown of one message.
inline constexpr std::size_t MOST_PLACES = 8;

/// A warning, error, stop or refusal of a run log, with what it means and where in the deck it comes from.
/// Messages that differ in their numbers only and follow one another are one.
struct explanation {
  message_kind kind = message_kind::unknown;
  std::vector<std::string> lines;  ///< of the log; none for the cause of a log that ends without one
  std::string meaning;             ///< plain text
  std::vector<named_place> places;

  /// Lines, meaning and places, each on its line; no line end after the last one.
  [[nodiscard]] std::string text(const deck_reading& deck) const;
};

struct explained_log {
  std::vector<explanation> messages;  ///< in the order of the log
  bool complete = true;               ///< no message is unknown
  /// The first failure of a stage, with what follows it up to the first message with a place; none in a log
  /// that ends well.
  [[nodiscard]] std::vector<const explanation*> failure() const;
};

/// Explains a log that a run of this deck left. A deck that is refused gives no places but those of refusals.
[[nodiscard]] explained_log explain(std::string_view log, const deck_reading& deck);

}  // namespace tervak::check
