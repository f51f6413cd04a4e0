#include "SoilCurves/py/stiff_clay_curve.hpp"

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/py/PYRCK.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

void stiff_clay_curve(common& cmn, const py_layer& layer, const py_method& method) {
  const double FL = sp(10.13f) / (cmn.ATMPRS / cmn.GAMWAT);
  const double FS = sp(101.3f) / cmn.ATMPRS;
  note(cmn, equation_of("PY-STIFF-2"),
       {{"gw", cmn.GAMWAT, in::weight}, {"pa", cmn.ATMPRS, in::stress}, {"fl", FL}, {"fs", FS}});
  for (int n = 1; n <= cmn.NUMCLY; ++n) {
    cmn.SUCLAY(n) = FS * cmn.SUCLAY(n);
    cmn.DPCLAY(n) = FL * cmn.DPCLAY(n);
  }
  const double GAM1 = layer.GAM * FS / FL;
  const double D1 = FL * layer.D;
  const double Z1 = FL * layer.H;
  vector1<double> P, Y;
  PYStiffClay(cmn, cmn.NUMCLY, cmn.DPCLAY, cmn.SUCLAY, GAM1, D1, layer.ICYCL, Z1, 0.0, 0, P, Y, cmn.IERR);
  if (cmn.IERR != 0) return fail(cmn, 1, method.PYRCK, layer.NL, layer.ND, cmn.IERR);
  for (int n = 1; n <= cmn.NUMCLY; ++n) {
    cmn.SUCLAY(n) = cmn.SUCLAY(n) / FS;
    cmn.DPCLAY(n) = cmn.DPCLAY(n) / FL;
  }
  const int O = cmn.NPYORG(layer.ND, layer.NL);
  cmn.PYSTR(O, layer.ND, layer.NL) = P(1) / D1 / FS;
  cmn.PYDSP(O, layer.ND, layer.NL) = Y(1) / FL;
  curve_side branch;
  for (int i = 2; i <= 11; ++i) branch.push_back({P(i) / D1 / FS, Y(i) / FL});
  note(cmn, equation_of("PY-STIFF-13"),
       {{"D", layer.D, in::length},
        {"y", branch.back().displacement, in::length},
        {"p", branch.back().stress, in::stress}});
  store_py(cmn, layer.NL, layer.ND, branch);
}

}  // namespace tervak
