#pragma once

#include "SoilCurves/py/py_frame.hpp"

namespace tervak {

/// Initial modulus of sand over the unit weight of water, by friction angle. The layer's level against ZPWP
/// selects the row: a layer exactly at ZPWP is submerged (API RP 2A, figure 6.8.7-1).
/// On failure prints the method's message, sets IERR to 1 and returns nothing.
std::optional<double> modulus_by_water_level(common& cmn, const py_layer& layer, const py_method& method);

/// Factor of the load on the ultimate resistance: 0.9, and above it 3.0 - 0.8 H / D near the surface when
/// static.
double load_factor(const py_layer& layer, int ICYCL);

/// Stores A * pu * tanh(k * H * y / (A * pu)), API RP 2A, 6.8.7, in eleven points; PU as a stress, ZTOL the
/// method's zero limit. The argument of the exponential is capped at 15, so the end carries 0.9999994 of A *
/// pu. A layer without resistance gets displacements of 0.111 to 0.999 and no stress.
void tanh_sand_curve(common& cmn, const py_layer& layer, double PU, double KV, double ZTOL);

}  // namespace tervak
