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
py_point last_corner(const common& cmn, const py_layer& layer, double PU, double YC) {
  if (layer.ICYCL == 1) return {15.0 * YC, cyclic_resistance(cmn, layer, PU)};
  return {8.0 * YC, PU};
}

}  // namespace

double cyclic_depth(const common& cmn, const py_layer& layer, double GAM) {
  const double D = layer.D;
  return std::max(2.5 * D, 6.0 * D / (D * GAM / cmn.SURED(layer.NL) + cmn.APIJ(layer.TYP)));
}

void soft_clay_curve_5(common& cmn, const py_layer& layer, double PU) {
  const double YC = reference_displacement(cmn, layer);
  const py_point corner = last_corner(cmn, layer, PU, YC);
  store_py(cmn, layer.NL, layer.ND,
           {{YC, 0.5 * PU}, {3.0 * YC, sp(0.72f) * PU}, corner, {cmn.BIGDSP, corner.P}});
}

void soft_clay_curve_7(common& cmn, const py_layer& layer, double PU) {
  const double YC = reference_displacement(cmn, layer);
  const py_point corner = last_corner(cmn, layer, PU, YC);
  store_py(cmn, layer.NL, layer.ND,
           {{sp(0.1f) * YC, sp(0.23f) * PU},
            {sp(0.3f) * YC, sp(0.33f) * PU},
            {YC, 0.5 * PU},
            {3.0 * YC, sp(0.72f) * PU},
            corner,
            {cmn.BIGDSP, corner.P}});
}

void modified_matlock_curve(common& cmn, const py_layer& layer, double PU) {
  const double YC = reference_displacement(cmn, layer);
  const double PR = cyclic_resistance(cmn, layer, PU);
  store_py(cmn, layer.NL, layer.ND,
           {{sp(0.1f) * YC, sp(0.23f) * PU},
            {sp(0.3f) * YC, sp(0.33f) * PU},
            {YC, 0.5 * PU},
            {15.0 * YC, PR},
            {25.0 * YC, PR},
            {cmn.BIGDSP, PR}});
}

}  // namespace tervak
