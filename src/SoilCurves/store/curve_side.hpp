#pragma once

#include <span>

#include "SoilCurves/store/curve_family.hpp"
#include "SoilCurves/store/curve_point.hpp"

namespace tervak {

/// A published shape at a full stress and a reference length (a diameter, or the displacement at full
/// stress).
[[nodiscard]] curve_side scaled_side(std::span<const curve_point> shape, double stress, double length);

/// Lays a compression side and a tension side around the origin and sets the number of points. The sides have
/// the same number of points. Tension is negated, so that a zero stress comes out as -0.0. The origin is not
/// written.
void lay_curve(const curve_family& family, layer_number NL, diameter_number ND, const curve_side& compression,
               const curve_side& tension);

}  // namespace tervak
