#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Q-Z curve (tip stress against axial displacement) of layer NL and diameter index ND by a published method.
/// Compression is positive; the negative side is the mirror image, and MODIFY decides whether a tip may take
/// tension. Writes QZSTR, QZDSP and NQZPNT.
///
/// ICODE 293 and 214: API RP 2A, 6.7.3, 13 points, whatever the shear modulus is.
/// ICODE 200: half of the full stress at half of the elastic settlement of a loaded circle of the tip's
/// diameter (from G and Poisson's ratio), full stress at QZDRAT * D, 11 points. The far point lies at BIGDSP
/// itself, not BIGDSP behind the last point. A settlement not below QZDRAT * D leaves 5 points and a warning.
/// All codes but 293 and 214: a revision 5 layer without a shear modulus gets 5 points of zero stress, and a
/// bad G or Poisson's ratio is told before a bad ICODE. IERR 1: the depth table, G or Poisson's ratio, or
/// ICODE.
void QZMISC(common& cmn, layer_number NL, diameter_number ND, int ICODE);

}  // namespace tervak
