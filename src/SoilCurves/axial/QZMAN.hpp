#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Lays the manual Q-Z curve of layer NL and diameter index ND around its origin and divides its stresses by
/// the safety factor on tip stress, SFSIGT: manual_axial_curve.hpp. IERR 1: no origin, or too many points on
/// one side.
void QZMAN(common& cmn, layer_number NL, diameter_number ND);

}  // namespace tervak
