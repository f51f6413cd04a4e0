#pragma once

#include "Control/state/common.hpp"
#include "SoilCurves/store/curve_point.hpp"

namespace tervak {

/// Makes a curve whole from its positive branch, for a stress table and a displacement table of any kind.
///
/// On entry PNT(ND, NL) is the number of points of the positive branch, origin counted; on return it is the
/// number of points of the whole curve, 2 * N - 1. The branch is copied point-symmetrically about the origin
/// ORG(ND, NL). Copies are negated, so a zero comes out as -0.0 and prints its sign in the interface file.
/// Throws std::out_of_range when the branch has no room on the negative side.
void mirror(curve_table& STR, curve_table& DSP, table2<int>& PNT, const table2<int>& ORG, diameter_number ND,
            layer_number NL);

/// Writes the positive branch of the P-Y curve of layer NL and diameter ND behind its origin, which stays at
/// (0, 0), and makes the curve whole.
void store_py(common& cmn, layer_number NL, diameter_number ND, const curve_side& branch);

}  // namespace tervak
