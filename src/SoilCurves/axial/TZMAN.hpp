#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Lays the manual T-Z curve of layer NL and diameter index ND around its origin and divides its stresses by
/// the safety factor on skin friction, SFSKF: manual_axial_curve.hpp. IERR 1: no origin, or too many points
/// on one side.
void TZMAN(common& cmn, layer_number NL, diameter_number ND);

}  // namespace tervak
