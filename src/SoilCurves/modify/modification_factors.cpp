#include "SoilCurves/modify/modification_factors.hpp"

#include <algorithm>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"

namespace tervak {

namespace {

/// The two outermost points of each side.
void scale_far_points(const curve_family& family, diameter_number ND, layer_number NL, double FEND,
                      double DEND) {
  const int O = family.NORG(ND, NL);
  const int H = family.NPNT(ND, NL) / 2;
  for (const int I : {O + H - 1, O + H, O - H + 1, O - H}) {
    family.STR(I, ND, NL) = FEND * family.STR(I, ND, NL);
    family.DSP(I, ND, NL) = DEND * family.DSP(I, ND, NL);
  }
}

/// Moves each branch one slot outward and by the gap: a stretch of no resistance opens about the origin.
bool open_gap(common& cmn, diameter_number ND, layer_number NL, double PYGAP) {
  note(cmn, equation_of("MOD-PY-2"), "gap", {{"PYGAP", PYGAP, in::length}});
  const int O = cmn.NPYORG(ND, NL);
  const int H = cmn.NPYPNT(ND, NL) / 2;
  cmn.NPYPNT(ND, NL) += 2;
  if (cmn.NPYPNT(ND, NL) > cmn.MAXPNT) {
    fail(cmn, 1, "(/,' **** SR/MODIFY : GAP GAVE P-Y MAX POINTS ERROR',/,' NDIA,LAY,NUMPNTS,MAX=',4i5)", ND,
         NL, cmn.NPYPNT(ND, NL), cmn.MAXPNT);
    return false;
  }
  for (int I = O + H + 1; I >= O + 2; --I) {
    cmn.PYSTR(I, ND, NL) = cmn.PYSTR(I - 1, ND, NL);
    cmn.PYDSP(I, ND, NL) = cmn.PYDSP(I - 1, ND, NL) + PYGAP;
  }
  for (int I = O - H - 1; I <= O - 2; ++I) {
    cmn.PYSTR(I, ND, NL) = cmn.PYSTR(I + 1, ND, NL);
    cmn.PYDSP(I, ND, NL) = cmn.PYDSP(I + 1, ND, NL) - PYGAP;
  }
  cmn.PYSTR(O - 1, ND, NL) = 0.0;
  cmn.PYDSP(O - 1, ND, NL) = -PYGAP;
  cmn.PYSTR(O + 1, ND, NL) = 0.0;
  cmn.PYDSP(O + 1, ND, NL) = PYGAP;
  return true;
}

void limit_stress(common& cmn, diameter_number ND, layer_number NL, double PYFEND) {
  double PMAX = 0.0;
  for (int I = 1; I <= cmn.MAXPNT; ++I) PMAX = std::max(PMAX, cmn.PYSTR(I, ND, NL));
  const double PLIM = PMAX * PYFEND;
  note(cmn, equation_of("MOD-PY-3"), "stress limited",
       {{"p", PMAX, in::stress}, {"PYFEND", PYFEND}, {"p", PLIM, in::stress}});
  for (int I = 1; I <= cmn.MAXPNT; ++I) {
    double& P = cmn.PYSTR(I, ND, NL);
    if (P > PLIM)
      P = PLIM;
    else if (P < -PLIM)
      P = -PLIM;
  }
}

}  // namespace

bool apply_py_factors(common& cmn, diameter_number ND, layer_number NL) {
  const auto [PYFSTR, PYFDSP, PYGAP, PYLIMS, PYFEND, PYDEND] = cmn.PYMOD(ND, NL);
  note(cmn, equation_of("MOD-PY-1"), {{"PYFSTR", PYFSTR}, {"PYFDSP", PYFDSP}});
  for (int I = 1; I <= cmn.MAXPNT; ++I) {
    cmn.PYSTR(I, ND, NL) = PYFSTR * cmn.PYSTR(I, ND, NL);
    cmn.PYDSP(I, ND, NL) = PYFDSP * cmn.PYDSP(I, ND, NL);
  }
  if (!(PYGAP < cmn.EPS) && !open_gap(cmn, ND, NL, PYGAP)) return false;
  if (!(PYLIMS < cmn.EPS) && !(PYLIMS > 1.0 - cmn.EPS)) limit_stress(cmn, ND, NL, PYFEND);
  note(cmn, equation_of("MOD-PY-4"), {{"PYFEND", PYFEND}, {"PYDEND", PYDEND}});
  scale_far_points(py_curves(cmn), ND, NL, PYFEND, PYDEND);
  return true;
}

void apply_axial_factors(const curve_family& family, diameter_number ND, layer_number NL, int MAXPNT,
                         const std::array<double, 5>& factors) {
  const auto [FPOS, FNEG, FDSP, FEND, DEND] = factors;
  for (int I = 1; I <= MAXPNT; ++I) {
    const double F = I > family.NORG(ND, NL) ? FPOS : FNEG;
    family.STR(I, ND, NL) = F * family.STR(I, ND, NL);
    family.DSP(I, ND, NL) = FDSP * family.DSP(I, ND, NL);
  }
  scale_far_points(family, ND, NL, FEND, DEND);
}

}  // namespace tervak
