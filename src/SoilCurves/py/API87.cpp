#include "SoilCurves/py/API87.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/py/py_frame.hpp"
#include "SoilCurves/py/soft_clay_curve.hpp"
#include "SoilCurves/py/stiff_clay_curve.hpp"
#include "SoilCurves/py/tanh_sand_curve.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

namespace {

constexpr py_method METHOD{
    1987,
    "(/,' **** SR/API87 : ERROR FROM SR/APILAT  NL,ND,IERR=',3i5)",
    "(/,' **** SR/API87 : ERROR FROM SR/PYRCK  NL,ND,IERR=',3i5)",
    "(/,' **** SR/API87 : ERROR FROM SR/INTPOL  IERR=',i5)",
};

void carbonate_sand_curve(common& cmn, const py_layer& layer) {
  const double D = layer.D;
  const double QC = layer.H * cmn.APIJ(layer.TYP) + cmn.OCR(layer.TYP);
  const double S3 = std::pow(cmn.SIGZRES(layer.NL), sp(0.33333334f));
  const double Q3 = std::pow(QC, sp(0.6666667f));
  const double RF = layer.ICYCL == 1 ? load_factor(layer, 1) / load_factor(layer, 0) : 1.0;
  note(cmn, equation_of("PY-588-S1"),
       {{"APIJM", cmn.APIJ(layer.TYP), in::weight},
        {"X", layer.H, in::length},
        {"OCR", cmn.OCR(layer.TYP), in::stress},
        {"qc", QC, in::stress}});
  note(cmn, equation_of("PY-588-S2"), layer.ICYCL == 1 ? "cyclic" : "static", {{"r", RF}});
  curve_side branch;
  double Y = D * sp(0.002f);
  for (int i = 1; i <= 10; ++i) {
    branch.push_back({std::min(QC, 1.5 * S3 * Q3 * RF * std::pow(Y / D, 0.5)), Y});
    Y = Y * 1.75;
  }
  note(cmn, equation_of("PY-588-S3"), branch.back().stress < QC ? "" : "qc reached",
       {{"sig'", cmn.SIGZRES(layer.NL), in::stress},
        {"y", branch.back().displacement, in::length},
        {"p", branch.back().stress, in::stress}});
  store_py(cmn, layer.NL, layer.ND, branch);
}

void sand(common& cmn, const py_layer& layer) {
  const auto PU = ultimate_resistance(cmn, layer, METHOD, 0.0);
  if (!PU) return;
  const auto KV = modulus_by_water_level(cmn, layer, METHOD);
  if (!KV) return;
  if (layer.PYCODE == 588) return carbonate_sand_curve(cmn, layer);
  tanh_sand_curve(cmn, layer, *PU, *KV, FINE_ZTOL);
}

}  // namespace

void API87(common& cmn, layer_number NL, diameter_number ND) {
  const auto layer = open_py(cmn, NL, ND, FINE_ZTOL);
  if (!layer) return;
  if (is_sand(cmn, *layer, FINE_ZTOL)) return sand(cmn, *layer);
  if (is_stiff_clay(cmn, *layer)) return stiff_clay_curve(cmn, *layer, METHOD);
  if (const auto PU = ultimate_resistance(cmn, *layer, METHOD, cmn.SURED(NL)))
    soft_clay_curve_5(cmn, *layer, *PU);
}

}  // namespace tervak
