#include "SoilCurves/py/soft_clay_curve.hpp"

#include <algorithm>

#include "Control/state/sp.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

namespace {

double reference_displacement(const common& cmn, const py_layer& layer) {
  return cmn.EPS50(layer.TYP) * 2.5 * layer.D;
}

double cyclic_resistance(const common& cmn, const py_layer& layer, double PU) {
  const double ZR = cyclic_depth(cmn, layer, layer.GAM);
  const double RED = std::min(1.0, layer.H / ZR);
  return sp(0.72f) * PU * RED;
}

/// Where the curve turns flat.
curve_point last_corner(const common& cmn, const py_layer& layer, double PU, double YC) {
  if (layer.ICYCL == 1) return {cyclic_resistance(cmn, layer, PU), 15.0 * YC};
  return {PU, 8.0 * YC};
}

}  // namespace

double cyclic_depth(const common& cmn, const py_layer& layer, double GAM) {
  const double D = layer.D;
  return std::max(2.5 * D, 6.0 * D / (D * GAM / cmn.SURED(layer.NL) + cmn.APIJ(layer.TYP)));
}

void soft_clay_curve_5(common& cmn, const py_layer& layer, double PU) {
  const double YC = reference_displacement(cmn, layer);
  const curve_point corner = last_corner(cmn, layer, PU, YC);
  store_py(cmn, layer.NL, layer.ND,
           {{0.5 * PU, YC}, {sp(0.72f) * PU, 3.0 * YC}, corner, {corner.stress, cmn.BIGDSP}});
}

void soft_clay_curve_7(common& cmn, const py_layer& layer, double PU) {
  const double YC = reference_displacement(cmn, layer);
  const curve_point corner = last_corner(cmn, layer, PU, YC);
  store_py(cmn, layer.NL, layer.ND,
           {{sp(0.23f) * PU, sp(0.1f) * YC},
            {sp(0.33f) * PU, sp(0.3f) * YC},
            {0.5 * PU, YC},
            {sp(0.72f) * PU, 3.0 * YC},
            corner,
            {corner.stress, cmn.BIGDSP}});
}

void modified_matlock_curve(common& cmn, const py_layer& layer, double PU) {
  const double YC = reference_displacement(cmn, layer);
  const double PR = cyclic_resistance(cmn, layer, PU);
  store_py(cmn, layer.NL, layer.ND,
           {{sp(0.23f) * PU, sp(0.1f) * YC},
            {sp(0.33f) * PU, sp(0.3f) * YC},
            {0.5 * PU, YC},
            {PR, 15.0 * YC},
            {PR, 25.0 * YC},
            {PR, cmn.BIGDSP}});
}

}  // namespace tervak
