#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Automatic T-Z curve of layer NL and diameter index ND for the codes 100 to 103 (automatic_curve.hpp), from
/// the full skin friction and the displacement ratio TZDRAT of the depth table. Writes TZSTR, TZDSP and
/// NTZPNT.
///
/// Tension has the initial stiffness of compression, and at least 0.00001 of a diameter to its full friction.
/// In revision 5 the friction is that of the layer; the displacements stay those of the depth table.
/// A residual ratio of 0 means 1, a residual displacement of 0 means 1 % of the diameter.
/// IERR 1: the depth table.
void TZAUTO(common& cmn, layer_number NL, diameter_number ND, int ICODE);

}  // namespace tervak
