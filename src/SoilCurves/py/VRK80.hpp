#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// P-Y curve of layer NL and diameter ND for code 380, "VRK-80": a hyperbola to the ultimate resistance of
/// VRKLAT, for clay a fall to a residual value, then flat. Sand and clay, however stiff, take the same shape.
/// The overconsolidation ratio of the soil type counts in a revision 4 deck only; without one it is estimated
/// from the strength ratio. IERR 1 where VRKLAT fails; its code stands alone in the message.
void VRK80(common& cmn, layer_number NL, diameter_number ND);

}  // namespace tervak
