#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// P-Y curve of layer NL and diameter ND for code 600, "NGI-11": soft clay by the ratio of shear modulus to
/// strength, a hyperbolic tangent of the root of the relative displacement up to 8 (cyclic 15) Y0, where
/// Y0 = 0.025 diameters. PYPARM of the main layer holds Gmax/Su first and the cyclic reduction second.
/// Every layer is worked as clay, whatever its friction angle.
/// A Gmax/Su outside 25 to 2500 prints a message and stops the run: fem::stop_info, IERR stays.
void NGI11(common& cmn, layer_number NL, diameter_number ND);

}  // namespace tervak
