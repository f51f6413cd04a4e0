#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Completes the P-Y curve that the deck gives for layer NL and diameter ND, whose points stand from the
/// origin on: adds a flat end BIGDSP behind the last point, where there is room, and mirrors. Fifteen points
/// fill the positive half, and the curve then ends as given.
void PYMAN(common& cmn, layer_number NL, diameter_number ND);

}  // namespace tervak
