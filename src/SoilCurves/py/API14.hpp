#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// P-Y curve of layer NL and diameter ND for code 214, "API-2014" (API RP 2GEO).
///
/// Sand: the hyperbolic tangent of API87, with one modulus table for all water levels. A KSOILM of the main
/// layer above 1.0E-12 (force/length3) is the modulus itself, whatever the friction angle. Soft clay in seven
/// points, stiff clay as in API84. The zero limit of depth and friction angle is 1.0E-12.
/// IERR 1 where the ultimate resistance, the stiff clay or the modulus lookup fails.
void API14(common& cmn, layer_number NL, diameter_number ND);

}  // namespace tervak
