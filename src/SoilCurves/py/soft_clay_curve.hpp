#pragma once

#include "SoilCurves/py/py_frame.hpp"

namespace tervak {

/// Soft clay after Matlock (OTC 1204, 1970), by layer data EPS50, APIJ and SURED; PU is the ultimate
/// resistance as a stress. Each of these stores the whole curve.

/// Points at 1, 3 and 8 YC (API RP 2A, 6.8.3), cyclic at 1, 3 and 15 YC.
void soft_clay_curve_5(common& cmn, const py_layer& layer, double PU);

/// The same with two points more, at 0.1 and 0.3 YC (API RP 2GEO, ISO 19901-4).
void soft_clay_curve_7(common& cmn, const py_layer& layer, double PU);

/// Modified Matlock for a stiff cyclic clay: straight from 0.5 PU at YC to the reduced resistance at 15 YC.
/// Near the surface that resistance may lie below 0.5 PU, so the curve then falls.
void modified_matlock_curve(common& cmn, const py_layer& layer, double PU);

/// Depth from which cyclic loading reduces the resistance no further, for a mean effective unit weight GAM;
/// at least 2.5 diameters.
double cyclic_depth(const common& cmn, const py_layer& layer, double GAM);

}  // namespace tervak
