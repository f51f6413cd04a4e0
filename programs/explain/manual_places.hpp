#pragma once

#include <string>

#include "explain/note_book.hpp"
#include "TervakExchange/deck_reading.hpp"

namespace tervak::explain {

/// Where the curves of code 0 are in the deck.
class manual_places {
 public:
  explicit manual_places(const Vrsk::Plin::TervakExchange::deck_reading& deck) : deck_(deck) {}
  /// "lines 41 to 44", or "" when the curve is not a given one.
  [[nodiscard]] std::string of(const told_profile& profile, note_subject::part family, int NL, int ND) const;

 private:
  const Vrsk::Plin::TervakExchange::deck_reading& deck_;
};

/// The code of a layer's method of one family.
int code_of(const told_layer& layer, note_subject::part family);

}  // namespace tervak::explain
