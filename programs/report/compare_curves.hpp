#pragma once

#include <optional>

#include "report/rif_data.hpp"

namespace tervak::report {

/// The greatest resistance of a side (1 or -1), without sign; less than zero where none of the side's points
/// resists.
double side_peak(const curve& c, int side);

/// Slope from the origin to the first point of the side at another displacement; 0 without such a point.
double initial_stiffness(const curve& c, int side);

/// The greatest change of a point in percent, its stress against the peak of its side, its displacement
/// against itself. Filler points do not count. Empty when the curves differ in the number of points.
std::optional<double> greatest_change(const curve& a, const curve& b, bool monopile);

}  // namespace tervak::report
