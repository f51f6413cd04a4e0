#pragma once

#include <optional>
#include <vector>

#include "report/rif_data.hpp"

namespace tervak::report {

/// Axial capacity of a pile that ends at `level`, a layer's bottom. All values are forces without sign, in
/// run units. An empty one cannot be given: see axial_capacities.
struct capacity_row {
  double level = 0.0;  // ZBOTM
  std::optional<double> skin_compression;
  std::optional<double> skin_tension;
  std::optional<double> tip;
  std::optional<double> capacity_compression;  // skin and tip
  std::optional<double> capacity_tension;      // skin alone
};

/// The rows of one diameter, one a layer.
struct axial_capacity {
  double diameter = 0.0;
  std::vector<capacity_row> rows;
};

/// Axial capacity with depth, by diameter: the sum over the layers of the peak of T-Z times pi D times the
/// layer's height, and in compression the peak of the layer's Q-Z times pi D^2 / 4. So it is what the curves
/// of the file add up to: the deck's safety factors are in it, and whether the soil plug holds is looked at
/// no further than the deck's method did. Curves of a diameter other than DIAMP carry the stresses of DIAMP.
///
/// The first layer begins at the sea floor. Only what lies below `local_scour` (a Z level) counts of a layer;
/// where it is not known, the whole of it does, though its curves have no stress when its level lies above.
///
/// T-Z code 100 is a straight line to far beyond any resistance and has no peak: skin and both capacities are
/// empty from that layer down. Q-Z code 100 empties the tip and the capacity in compression of its own level.
std::vector<axial_capacity> axial_capacities(const profile& p,
                                             std::optional<double> local_scour = std::nullopt);

}  // namespace tervak::report
