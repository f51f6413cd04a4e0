#include "SoilCurves/py/PYMAN.hpp"

#include "Control/state/note.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

void PYMAN(common& cmn, layer_number NL, diameter_number ND) {
  const int N = cmn.NPYPNT(ND, NL);
  const int K = cmn.NPYORG(ND, NL) + N;
  if (K <= cmn.MAXPNT) {
    cmn.PYSTR(K, ND, NL) = cmn.PYSTR(K - 1, ND, NL);
    cmn.PYDSP(K, ND, NL) = cmn.PYDSP(K - 1, ND, NL) + cmn.BIGDSP;
    cmn.NPYPNT(ND, NL) = N + 1;
  }
  note(cmn, equation_of("PY-0-1"), K <= cmn.MAXPNT ? "" : "15 points are given, no far point",
       {{"yf", cmn.BIGDSP, in::length}});
  mirror(cmn.PYSTR, cmn.PYDSP, cmn.NPYPNT, cmn.NPYORG, ND, NL);
}

}  // namespace tervak
