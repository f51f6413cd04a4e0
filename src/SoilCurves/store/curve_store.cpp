#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

void mirror(curve_table& STR, curve_table& DSP, table2<int>& PNT, const table2<int>& ORG, diameter_number ND,
            layer_number NL) {
  const int O = ORG(ND, NL);
  const int N = PNT(ND, NL);
  for (int I = 1; I <= N - 1; ++I) {
    STR(O - I, ND, NL) = -STR(O + I, ND, NL);
    DSP(O - I, ND, NL) = -DSP(O + I, ND, NL);
  }
  PNT(ND, NL) = 2 * N - 1;
}

void store_py(common& cmn, layer_number NL, diameter_number ND, const curve_side& branch) {
  int I = cmn.NPYORG(ND, NL);
  for (const curve_point& point : branch) {
    ++I;
    cmn.PYDSP(I, ND, NL) = point.displacement;
    cmn.PYSTR(I, ND, NL) = point.stress;
  }
  cmn.NPYPNT(ND, NL) = static_cast<int>(branch.size()) + 1;
  mirror(cmn.PYSTR, cmn.PYDSP, cmn.NPYPNT, cmn.NPYORG, ND, NL);
}

}  // namespace tervak
