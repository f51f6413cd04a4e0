#pragma once

#include <string>

#include "explain/note_book.hpp"
#include "TervakExchange/deck_reading.hpp"

namespace tervak::explain {

/// Where the curves of code 0 and the factors of a curve are in the deck.
class deck_places {
 public:
  explicit deck_places(const Vrsk::Plin::TervakExchange::deck_reading& deck) : deck_(deck) {}
  /// ", given in the deck at MANUALPY, lines 41 to 44" for a given curve, and ", factors at MODIFYPY, line
  /// 50" for one that a row of factors reaches; "" when neither is so.
  [[nodiscard]] std::string of(const told_profile& profile, note_subject::part family, int NL, int ND) const;

 private:
  [[nodiscard]] std::string given(const told_profile& profile, note_subject::part family, int NL,
                                  int ND) const;
  [[nodiscard]] std::string factors(const told_profile& profile, note_subject::part family, int NL,
                                    int ND) const;

  const Vrsk::Plin::TervakExchange::deck_reading& deck_;
};

/// The code of a layer's method of one family.
int code_of(const told_layer& layer, note_subject::part family);

}  // namespace tervak::explain
