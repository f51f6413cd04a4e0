#pragma once

#include <span>
#include <vector>

#include "SoilCurves/store/curve_family.hpp"

namespace tervak {

/// A point of a curve, or the ratios of a published shape to its full stress and its reference length.
struct curve_point {
  double stress;
  double displacement;
};

/// One side of a curve, from the first point behind the origin outward, both members positive.
using curve_side = std::vector<curve_point>;

/// A published shape at a full stress and a reference length (a diameter, or the displacement at full
/// stress).
[[nodiscard]] curve_side scaled_side(std::span<const curve_point> shape, double stress, double length);

/// Lays a compression side and a tension side around the origin and sets the number of points. The sides have
/// the same number of points. Tension is negated, so that a zero stress comes out as -0.0. The origin is not
/// written.
void lay_curve(const curve_family& family, int NL, int ND, const curve_side& compression,
               const curve_side& tension);

}  // namespace tervak
