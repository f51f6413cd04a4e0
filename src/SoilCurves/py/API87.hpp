#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// P-Y curve of layer NL and diameter ND for code 287, "API-87", and code 588, carbonate sand.
///
/// Sand: hyperbolic tangent, API RP 2A (17th edition, 1987), 6.8.7. Clays as in API84. The zero limit of
/// depth and friction angle is 1.0E-12 here, not EPS. Code 588 in sand takes the curve from the cone
/// resistance QC = H * APIJ + OCR, the two columns holding its rise with depth and its value at the surface;
/// that curve ends at about 0.308 diameters, not at BIGDSP. IERR 1 where the ultimate resistance, the stiff
/// clay or the modulus lookup fails, for code 588 as well.
void API87(common& cmn, layer_number NL, diameter_number ND);

}  // namespace tervak
