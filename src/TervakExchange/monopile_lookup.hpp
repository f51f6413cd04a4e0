#pragma once

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "TervakExchange/TervakInputData.hpp"

namespace Vrsk::Plin::TervakExchange {

/// Finds the curves of a monopile section. A record fits a layer and a diameter when its diameter, times
/// `lengthFactor` (one deck length in run units), lies within 1.0E-8 run units of it. Building takes
/// n log n for n records, a curve log n. Refers to the section, which must outlive it.
class ManualCurveLookup {
 public:
  ManualCurveLookup(const ManualMonopileSection& section, double lengthFactor);

  /// The first record that fits; a displacement that repeats keeps its place and the last force. No record:
  /// an empty map.
  [[nodiscard]] ManualMonopileCurve GetManualCurve(int layer, double diameter) const;

 private:
  struct key {
    int layer;
    double diameter;  ///< in run units
    std::size_t record;
  };
  const ManualMonopileSection& section_;
  std::vector<key> keys_;  ///< by layer and diameter, of equal ones the first record only
};

/// Finds the factors of a monopile section; fits as above.
class ModificationLookup {
 public:
  ModificationLookup(const MonopileModificationSection& section, double lengthFactor);

  /// Force factor and displacement factor of the first line that covers layer and diameter. Throws
  /// std::out_of_range when none does.
  [[nodiscard]] std::pair<double, double> GetModification(int layer, double diameter) const;

 private:
  /// From a layer on (to the next entry), the first line that covers it; NO_LINE where none does.
  using first_lines = std::map<long long, std::size_t>;
  [[nodiscard]] first_lines lines_for(double diameter) const;

  const MonopileModificationSection& section_;
  std::vector<std::pair<double, std::size_t>> lines_;  ///< diameter in run units and line, ascending
  mutable std::map<double, first_lines> found_;        ///< by diameter asked for
};

}  // namespace Vrsk::Plin::TervakExchange
