#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Makes the P-Y, T-Z and Q-Z curves of one layer for all diameters, each by the method that the layer's code
/// selects. False ends the run: a method failed (IERR tells) or a code is in no table (IERR stays 0).
[[nodiscard]] bool make_curves(common& cmn, layer_number NL);

}  // namespace tervak
