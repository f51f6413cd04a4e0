#include "SoilCurves/py/VRK80.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/py/py_frame.hpp"
#include "SoilCurves/py/VRKLAT.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

namespace {

/// What shapes the curve: ultimate resistance, initial modulus, displacements of the ultimate and the
/// residual resistance over the diameter, residual over ultimate.
struct shape {
  double PU, E, A, B, RES;
};

std::optional<double> lateral(common& cmn, const py_layer& layer, double SU, double OCR) {
  double PU = 0.0;
  VRKLAT(cmn.PHIR(layer.NL), SU, layer.H, cmn.SIGZRES(layer.NL), layer.D, layer.GAM, layer.ICYCL, OCR, PU,
         cmn.IERR, cmn.NOTE);
  if (cmn.IERR == 0) return PU;
  // The one code fills the first of the three fields; the other two stay empty.
  fail(cmn, 1, "(/,' **** SR/VRK80 : ERROR FROM SR/VRKLAT  NL,ND,IERR=',3i5)", cmn.IERR);
  return std::nullopt;
}

std::optional<shape> sand(common& cmn, const py_layer& layer) {
  const auto PU = lateral(cmn, layer, 0.0, 0.0);
  if (!PU) return std::nullopt;
  const double PHI = cmn.PHIR(layer.NL);
  double K = 500.0;
  if (PHI > 30.0) K = 1200.0;
  if (PHI > 36.0) K = 1800.0;
  const shape s{*PU, K * cmn.GAMWAT * layer.H / layer.D, sp(0.04f), sp(0.1f), 1.0};
  note(cmn, equation_of("PY-380-S2"),
       {{"phi", PHI, in::degrees},
        {"kv", K},
        {"gw", cmn.GAMWAT, in::weight},
        {"E", s.E, in::weight},
        {"A", s.A},
        {"B", s.B},
        {"res", s.RES}});
  return s;
}

std::optional<shape> clay(common& cmn, const py_layer& layer) {
  const double SU = cmn.SURED(layer.NL);
  double R = cmn.REVISION == 4 ? cmn.OCR(layer.TYP) : 0.0;
  if (R < cmn.EPS) R = SU * 4.0 / std::max(cmn.EPS, cmn.SIGZRES(layer.NL));
  note(cmn, equation_of("PY-380-C1"),
       {{"Su", SU, in::stress}, {"sig'", cmn.SIGZRES(layer.NL), in::stress}, {"R", R}});
  const auto PU = lateral(cmn, layer, SU, R);
  if (!PU) return std::nullopt;
  const bool over = !(R < sp(1.01f));
  double A = over ? 5.0 : 20.0;
  double B = over ? 8.0 : 80.0;
  if (layer.ICYCL == 1) {
    A = over ? 2.5 : 7.5;
    B = over ? 5.0 : 20.0;
  }
  const double C = over ? 30.0 : 10.0;
  const double EPS50 = cmn.EPS50(layer.TYP);
  A = A * EPS50;
  B = B * EPS50;
  const double E = C * *PU / (std::pow(EPS50, 0.25) * layer.D);
  const double F = R > sp(1.01f) ? 5.0 : 10.0;  // at exactly 1.01 the table counts as over, this does not
  const double RES = std::min(0.5, layer.H * 0.25 / (layer.D * F) + 0.25);
  note(cmn, equation_of("PY-380-C3"), over ? "R >= 1.01" : "R < 1.01",
       {{"eps50", EPS50}, {"D", layer.D, in::length}, {"C", C}, {"E", E, in::weight}, {"A", A}, {"B", B}});
  note(cmn, equation_of("PY-380-C4"), {{"X", layer.H, in::length}, {"F", F}, {"res", RES}});
  return shape{*PU, E, A, B, RES};
}

void store(common& cmn, const py_layer& layer, const shape& s) {
  const double D = layer.D;
  const double T = 1.0 - s.PU / (s.E * s.A * D);
  note(cmn, equation_of("PY-380-H1"), T < cmn.EPS ? "straight to A D, T is not above zero" : "hyperbola",
       {{"T", T}, {"A D", s.A * D, in::length}, {"pu", s.PU, in::stress}});
  curve_side branch;
  if (!(T < cmn.EPS)) {
    const double PH = s.PU / T;
    const double DY = D * s.A / 6.0;
    double Y = 0.0;
    for (int i = 1; i <= 5; ++i) {
      Y += DY;
      branch.push_back({Y / (Y / PH + 1.0 / s.E), Y});
    }
  }
  branch.push_back({s.PU, s.A * D});
  branch.push_back({s.RES * s.PU, s.B * D});
  branch.push_back({s.RES * s.PU, cmn.BIGDSP});
  store_py(cmn, layer.NL, layer.ND, branch);
}

}  // namespace

void VRK80(common& cmn, layer_number NL, diameter_number ND) {
  const auto layer = open_py(cmn, NL, ND, cmn.EPS);
  if (!layer) return;
  if (const auto s = is_sand(cmn, *layer, cmn.EPS) ? sand(cmn, *layer) : clay(cmn, *layer))
    store(cmn, *layer, *s);
}

}  // namespace tervak
