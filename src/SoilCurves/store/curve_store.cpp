#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

void mirror(curve_table& STR, curve_table& DSP, table2<int>& PNT, const table2<int>& ORG, int ND, int NL) {
  const int O = ORG(ND, NL);
  const int N = PNT(ND, NL);
  for (int I = 1; I <= N - 1; ++I) {
    STR(O - I, ND, NL) = -STR(O + I, ND, NL);
    DSP(O - I, ND, NL) = -DSP(O + I, ND, NL);
  }
  PNT(ND, NL) = 2 * N - 1;
}

void store_py(common& cmn, int NL, int ND, const std::vector<py_point>& branch) {
  int I = cmn.NPYORG(ND, NL);
  for (const py_point& point : branch) {
    ++I;
    cmn.PYDSP(I, ND, NL) = point.Y;
    cmn.PYSTR(I, ND, NL) = point.P;
  }
  cmn.NPYPNT(ND, NL) = static_cast<int>(branch.size()) + 1;
  mirror(cmn.PYSTR, cmn.PYDSP, cmn.NPYPNT, cmn.NPYORG, ND, NL);
}

}  // namespace tervak
