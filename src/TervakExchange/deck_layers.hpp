#pragma once

#include <array>
#include <optional>
#include <vector>

#include "TervakExchange/profile_reader.hpp"

namespace Vrsk::Plin::TervakExchange {

/// The calculation layers and the diameters of a profile, where the deck alone tells them.
struct deck_layers {
  struct range {
    int first = 0, last = 0;
  };
  std::vector<std::array<int, 3>> codes;  ///< P-Y, T-Z, Q-Z of each calculation layer
  std::vector<range> main_layers;         ///< the calculation layers of each main layer; revision 5 only
  std::vector<double> diameters;
  double run_length = 1.0;  ///< one metre in run units, in which diameters are compared

  [[nodiscard]] int count() const { return static_cast<int>(codes.size()); }
  [[nodiscard]] int last_diameter() const { return static_cast<int>(diameters.size()); }
  /// The number of a diameter from 1, as the stages find it; 0 when it is no DIAM.
  [[nodiscard]] int diameter_number(double diameter) const;
  /// Whether the stages take the diameter of a row of factors for all diameters.
  [[nodiscard]] bool means_all(double diameter) const { return diameter * run_length < 1.0E-10; }
};

/// Nothing when pile nodes make the layers, and when the numbers of rows or layers or the count of diameters
/// are not sound: then the stages speak, before they look at any factor or curve.
[[nodiscard]] std::optional<deck_layers> known_layers(const profile_draft& draft);

}  // namespace Vrsk::Plin::TervakExchange
