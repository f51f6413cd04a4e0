#include "SoilCurves/py/soft_clay_curve.hpp"

#include <algorithm>

#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

namespace {

double reference_displacement(const common& cmn, const py_layer& layer) {
  const double YC = cmn.EPS50(layer.TYP) * 2.5 * layer.D;
  note(cmn, equation_of("PY-SOFT-1"),
       {{"eps50", cmn.EPS50(layer.TYP)}, {"D", layer.D, in::length}, {"yc", YC, in::length}});
  return YC;
}

double cyclic_resistance(const common& cmn, const py_layer& layer, double PU) {
  const double ZR = cyclic_depth(cmn, layer, layer.GAM);
  const double RED = std::min(1.0, layer.H / ZR);
  const double PR = sp(0.72f) * PU * RED;
  note(cmn, equation_of("PY-SOFT-2"),
       {{"D", layer.D, in::length},
        {"gam", layer.GAM, in::weight},
        {"Su", cmn.SURED(layer.NL), in::stress},
        {"J", cmn.APIJ(layer.TYP)},
        {"XR", ZR, in::length}});
  note(cmn, equation_of("PY-SOFT-3"), layer.H < ZR ? "cyclic, X < XR" : "cyclic, X >= XR",
       {{"X", layer.H, in::length}, {"pu", PU, in::stress}, {"pr", PR, in::stress}});
  return PR;
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
  note(cmn, equation_of("PY-570-C2"), PR < 0.5 * PU ? "falls after yc" : "",
       {{"yc", YC, in::length}, {"0.5 pu", 0.5 * PU, in::stress}, {"pr", PR, in::stress}});
  store_py(cmn, layer.NL, layer.ND,
           {{sp(0.23f) * PU, sp(0.1f) * YC},
            {sp(0.33f) * PU, sp(0.3f) * YC},
            {0.5 * PU, YC},
            {PR, 15.0 * YC},
            {PR, 25.0 * YC},
            {PR, cmn.BIGDSP}});
}

}  // namespace tervak
