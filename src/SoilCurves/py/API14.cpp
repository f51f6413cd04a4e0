#include "SoilCurves/py/API14.hpp"

#include <array>

#include "Control/state/note.hpp"
#include "SoilCurves/py/py_frame.hpp"
#include "SoilCurves/py/soft_clay_curve.hpp"
#include "SoilCurves/py/stiff_clay_curve.hpp"
#include "SoilCurves/py/tanh_sand_curve.hpp"

namespace tervak {

namespace {

constexpr py_method METHOD{
    2014,
    "(/,' **** SR/API14 : ERROR FROM SR/APILAT  NL,ND,IERR=',3i5)",
    "(/,' **** SR/API14 : ERROR FROM SR/PYRCK  NL,ND,IERR=',3i5)",
    "(/,' **** SR/API14 : ERROR FROM SR/INTPOL  IERR=',i5)",
};

constexpr std::array<double, 7> ANGLES{0.0, 20.0, 25.0, 30.0, 35.0, 40.0, 45.0};
constexpr std::array<double, 7> MODULI{0.0, 537.0, 537.0, 1094.0, 2189.0, 4476.0, 5974.0};

void sand(common& cmn, const py_layer& layer) {
  const auto PU = ultimate_resistance(cmn, layer, METHOD, 0.0);
  if (!PU) return;
  const double KSOIL = cmn.KSOILM(layer.TYP);
  const auto KV = KSOIL > FINE_ZTOL ? std::optional(KSOIL / cmn.GAMWAT)
                                    : table_value(cmn, METHOD, ANGLES, MODULI, cmn.PHIR(layer.NL));
  if (!KV) return;
  note(cmn, equation_of("PY-214-S1"), KSOIL > FINE_ZTOL ? "KSOILM of the deck" : "table of code 214",
       {{"phi", cmn.PHIR(layer.NL), in::degrees},
        {"KSOILM", KSOIL, in::weight},
        {"gw", cmn.GAMWAT, in::weight},
        {"kv", *KV}});
  tanh_sand_curve(cmn, layer, *PU, *KV, FINE_ZTOL);
}

}  // namespace

void API14(common& cmn, layer_number NL, diameter_number ND) {
  const auto layer = open_py(cmn, NL, ND, FINE_ZTOL);
  if (!layer) return;
  if (is_sand(cmn, *layer, FINE_ZTOL)) return sand(cmn, *layer);
  if (is_stiff_clay(cmn, *layer)) return stiff_clay_curve(cmn, *layer, METHOD);
  if (const auto PU = ultimate_resistance(cmn, *layer, METHOD, cmn.SURED(NL)))
    soft_clay_curve_7(cmn, *layer, *PU);
}

}  // namespace tervak
