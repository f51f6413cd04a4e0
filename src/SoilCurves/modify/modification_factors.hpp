#pragma once

#include <array>

#include "SoilCurves/store/curve_family.hpp"

namespace tervak {

/// Applies PYMOD to the P-Y curve of diameter ND and layer NL: scale, gap, stress limit, far points, in this
/// order. Returns false, with a message and IERR 1, when the gap leaves more than MAXPNT points.
[[nodiscard]] bool apply_py_factors(common& cmn, diameter_number ND, layer_number NL);

/// Applies TZMOD or QZMOD to a T-Z or Q-Z curve: stress by side (the origin counts to the negative side),
/// displacement, far points.
void apply_axial_factors(const curve_family& family, diameter_number ND, layer_number NL, int MAXPNT,
                         const std::array<double, 5>& factors);

}  // namespace tervak
