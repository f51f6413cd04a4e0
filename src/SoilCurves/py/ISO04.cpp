#include "SoilCurves/py/ISO04.hpp"

#include "Control/state/note.hpp"
#include "SoilCurves/py/py_frame.hpp"
#include "SoilCurves/py/soft_clay_curve.hpp"
#include "SoilCurves/py/stiff_clay_curve.hpp"
#include "SoilCurves/py/tanh_sand_curve.hpp"

namespace tervak {

namespace {

constexpr py_method METHOD{
    1987,
    "(/,' **** SR/ISO04 : ERROR FROM SR/APILAT  NL,ND,IERR=',3i5)",
    "(/,' **** SR/ISO04 : ERROR FROM SR/PYRCK  NL,ND,IERR=',3i5)",
    "(/,' **** SR/ISO04 : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(  IERR=',i5)",
};

void sand(common& cmn, const py_layer& layer) {
  const auto PU = ultimate_resistance(cmn, layer, METHOD, 0.0);
  if (!PU) return;
  if (const auto KV = modulus_by_water_level(cmn, layer, METHOD))
    tanh_sand_curve(cmn, layer, *PU, *KV, cmn.EPS);
}

void clay(common& cmn, const py_layer& layer) {
  const double SU = cmn.SURED(layer.NL);
  const bool modified = layer.PYCODE == 570;
  if (!modified && is_stiff_clay(cmn, layer)) return stiff_clay_curve(cmn, layer, METHOD);
  const auto PU = ultimate_resistance(cmn, layer, METHOD, SU);
  if (!PU) return;
  const bool changed = modified && !(SU < cmn.SUSTIF) && layer.ICYCL == 1;
  if (modified)
    note(cmn, equation_of("PY-570-C1"),
         changed ? "modified curve, cyclic and Su >= SUSTIF" : "soft clay curve of seven points",
         {{"Su", SU, in::stress}, {"SUSTIF", cmn.SUSTIF, in::stress}});
  if (changed) return modified_matlock_curve(cmn, layer, *PU);
  soft_clay_curve_7(cmn, layer, *PU);
}

}  // namespace

void ISO04(common& cmn, layer_number NL, diameter_number ND) {
  const auto layer = open_py(cmn, NL, ND, cmn.EPS);
  if (!layer) return;
  if (is_sand(cmn, *layer, cmn.EPS)) return sand(cmn, *layer);
  clay(cmn, *layer);
}

}  // namespace tervak
