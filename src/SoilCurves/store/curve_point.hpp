#pragma once

#include <vector>

namespace tervak {

/// A point of a curve of any family, in run units, or the ratios of a published shape to its full stress and
/// its reference length. The stress of a P-Y curve is the resistance per unit length over the diameter.
struct curve_point {
  double stress;
  double displacement;
};

/// One side of a curve, from the first point after the origin outward, both members positive.
using curve_side = std::vector<curve_point>;

}  // namespace tervak
