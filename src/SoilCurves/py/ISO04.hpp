#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// P-Y curve of layer NL and diameter ND for code 404, "ISO-04" (ISO 19901-4), and code 570, "ModMat".
///
/// Sand as API87, soft clay in seven points, stiff clay as in API84. Code 570 never takes the stiff clay
/// curve: a cyclic clay of at least SUSTIF gets the modified Matlock curve, any other clay the seven points.
/// IERR 1 where the ultimate resistance, the stiff clay or the modulus lookup fails.
void ISO04(common& cmn, layer_number NL, diameter_number ND);

}  // namespace tervak
