#pragma once

#include <algorithm>
#include <cmath>

namespace tervak {

/// Shear modulus at small strain over undrained strength of a clay with the overconsolidation ratio R, used
/// within 1 to 10: 300 for a normally consolidated clay, falling to 50.
inline double clay_stiffness_ratio(double R) {
  const double X = std::clamp(R, 1.0, 10.0) - 1;
  const double C = X > 0 ? 300 - 85 * std::sqrt(X) : 300.0;
  return std::max(50.0, C);
}

}  // namespace tervak
