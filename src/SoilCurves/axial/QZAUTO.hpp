#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Automatic Q-Z curve of layer NL and diameter index ND for the codes 100 to 103 (automatic_curve.hpp), from
/// the tip stress and the displacement ratio QZDRAT of the depth table, in revision 5 from the tip stress of
/// the layer. Both sides have the same stress. Code 103 falls to half the stress at twice the displacement.
/// Writes QZSTR, QZDSP and NQZPNT. IERR 1: the depth table.
void QZAUTO(common& cmn, layer_number NL, diameter_number ND, int ICODE);

}  // namespace tervak
