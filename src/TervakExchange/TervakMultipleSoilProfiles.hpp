#pragma once

#include <istream>
#include <string>
#include <string_view>
#include <vector>

#include "TervakExchange/deck_error.hpp"
#include "TervakExchange/Tervak.hpp"

namespace Vrsk::Plin::TervakExchange {

/// The deck: all profiles, in the order of the deck.
class TervakMultipleSoilProfiles {
 public:
  /// Reads the whole deck. The numbers are taken as being in the two units, "m" and "N" of this program.
  /// `file_name` is the name as the stream was opened; it opens each line of a refusal.
  /// Throws deck_error, whose text names every fault with its place.
  void Import(std::istream& stream, std::string_view lengthUnit, std::string_view forceUnit,
              std::string_view file_name = "tervak.inp");

  [[nodiscard]] const std::vector<Tervak>& GetSoilProfiles() const { return profiles_; }

 private:
  std::vector<Tervak> profiles_;
};

}  // namespace Vrsk::Plin::TervakExchange
