#include "SoilCurves/py/PYAUTO.hpp"

#include "Control/state/sp.hpp"
#include "SoilCurves/py/PYULT.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

void PYAUTO(common& cmn, int NL, int ND, int CODE) {
  double PU = 0.0;
  PYULT(cmn.PHIR(NL) / 180.0 * cmn.PI, cmn.SURED(NL), cmn.DEPTH(NL), cmn.SIGZRES(NL), cmn.DIAM(ND), PU);
  const double YM = cmn.DIAM(ND) * sp(0.1f);
  const py_point yield{sp(0.3f) * YM, 0.75 * PU};
  const py_point peak{YM, PU};
  switch (CODE) {
    case 100:
      return store_py(cmn, NL, ND, {{1000.0 * YM, 1000.0 * PU}});
    case 101:
      return store_py(cmn, NL, ND, {peak, {cmn.BIGDSP, PU}});
    case 102:
      return store_py(cmn, NL, ND, {yield, peak, {cmn.BIGDSP, PU}});
    case 103:
      return store_py(cmn, NL, ND, {yield, peak, {2 * YM, 0.5 * PU}, {cmn.BIGDSP, 0.5 * PU}});
    default:
      return;
  }
}

}  // namespace tervak
