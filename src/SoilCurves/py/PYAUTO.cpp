#include "SoilCurves/py/PYAUTO.hpp"

#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/py/PYULT.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

void PYAUTO(common& cmn, layer_number NL, diameter_number ND, int CODE) {
  double PU = 0.0;
  PYULT(cmn.PHIR(NL) / 180.0 * cmn.PI, cmn.SURED(NL), cmn.DEPTH(NL), cmn.SIGZRES(NL), cmn.DIAM(ND), PU,
        cmn.NOTE);
  const double YM = cmn.DIAM(ND) * sp(0.1f);
  note(cmn, equation_of("PY-100-1"), {{"D", cmn.DIAM(ND), in::length}, {"ym", YM, in::length}});
  const curve_point yield{0.75 * PU, sp(0.3f) * YM};
  const curve_point peak{PU, YM};
  switch (CODE) {
    case 100:
      note(cmn, equation_of("PY-100-2"), {{"pu", PU, in::stress}, {"ym", YM, in::length}});
      return store_py(cmn, NL, ND, {{1000.0 * PU, 1000.0 * YM}});
    case 101:
      note(cmn, equation_of("PY-101-1"), {{"pu", PU, in::stress}, {"ym", YM, in::length}});
      return store_py(cmn, NL, ND, {peak, {PU, cmn.BIGDSP}});
    case 102:
      note(cmn, equation_of("PY-102-1"), {{"pu", PU, in::stress}, {"ym", YM, in::length}});
      return store_py(cmn, NL, ND, {yield, peak, {PU, cmn.BIGDSP}});
    case 103:
      note(cmn, equation_of("PY-103-1"), {{"pu", PU, in::stress}, {"ym", YM, in::length}});
      return store_py(cmn, NL, ND, {yield, peak, {0.5 * PU, 2 * YM}, {0.5 * PU, cmn.BIGDSP}});
    default:
      return;
  }
}

}  // namespace tervak
