#pragma once

#include "SoilCurves/store/curve_family.hpp"

namespace tervak {

/// The two messages of a manual axial curve.
struct manual_curve_texts {
  const char* no_origin;  ///< items: NL, ND
  const char* too_many;   ///< items: MAX, LEFT, RIGHT
};

/// Lays a T-Z or Q-Z curve given by hand around the origin of the store. On entry the given points stand from
/// index 1 up in ascending displacement, NPNT of them; each stress is divided by the safety factor SF.
///
/// A curve that starts at its origin is mirrored. Any other is laid as it stands, and the side with fewer
/// points is filled up in steps of one diameter with the stress of its last given point. A side has room for
/// NORG - 1 points. IERR 1: no point at the origin (within EPS), or too many points on a side.
void lay_manual_curve(common& cmn, const curve_family& family, layer_number NL, diameter_number ND, double SF,
                      const manual_curve_texts& texts);

}  // namespace tervak
