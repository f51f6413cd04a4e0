#include "SoilCurves/py/API84.hpp"

#include <array>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/py/py_frame.hpp"
#include "SoilCurves/py/soft_clay_curve.hpp"
#include "SoilCurves/py/stiff_clay_curve.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

namespace {

constexpr py_method METHOD{
    1984,
    "(/,' **** SR/API84 : ERROR FROM SR/APILAT  NL,ND,IERR=',3i5)",
    "(/,' **** SR/API84 : ERROR FROM SR/PYRCK  NL,ND,IERR=',3i5)",
    "(/,' **** SR/API84 : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(  IERR=',i5)",
};

constexpr std::array<double, 7> DEPTH_RATIO{0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
constexpr std::array<double, 7> A_STATIC{2.91, 2.1, 1.46, 1.07, 0.9, 0.88, 0.88};
constexpr std::array<double, 7> A_CYCLIC{0.78, 1.08, 1.04, 0.94, 0.91, 0.88, 0.88};
constexpr std::array<double, 7> B_STATIC{2.15, 1.54, 1.05, 0.72, 0.52, 0.5, 0.5};
constexpr std::array<double, 7> B_CYCLIC{0.54, 0.82, 0.83, 0.69, 0.56, 0.55, 0.55};

double parabola_exponent(common& cmn, const py_layer& layer, const curve_point& M, const curve_point& U) {
  double DP = U.stress - M.stress;
  if (std::abs(DP) < cmn.EPS) DP = cmn.EPS;
  const double EXPN = ((U.displacement - M.displacement) * M.stress / M.displacement) / DP;
  if (!(EXPN < sp(1.01f))) return EXPN;
  remark(
      cmn,
      "(/,' WARNING FROM SR/API84 : ND,NL,EXPN=',2i5,e12.4,/,' ABOVE EXPONENT VALUE WAS REPLACED BY 1.01')",
      layer.ND, layer.NL, EXPN);
  return sp(1.01f);
}

/// Line of slope K * H / D to (YK, ...), parabola to M, line to U. A line that would meet the parabola behind
/// M is dropped with the parabola, and the curve goes straight to M.
void store_sand(common& cmn, const py_layer& layer, double K, const curve_point& M, const curve_point& U) {
  const double H = layer.H;
  const double D = layer.D;
  const double EXPN = parabola_exponent(cmn, layer, M, U);
  const double C = std::pow(M.displacement, 1.0 / EXPN);
  const double YK = std::pow(D * M.stress / (H * K * C), EXPN / (EXPN - 1.0));
  note(cmn, equation_of("PY-284-S3"), {{"n", EXPN}});
  note(cmn, equation_of("PY-284-S4"), {{"X", H, in::length}, {"D", D, in::length}, {"yK", YK, in::length}});
  const curve_point end{U.stress, cmn.BIGDSP};
  note(cmn, equation_of("PY-284-S5"), YK > M.displacement ? "yK > yM, straight to M" : "line, parabola, line",
       {{"yM", M.displacement, in::length}, {"pU", U.stress, in::stress}});
  if (YK > M.displacement) return store_py(cmn, layer.NL, layer.ND, {M, U, end});
  const auto parabola = [&](double y) { return curve_point{std::pow(y, 1.0 / EXPN) * M.stress / C, y}; };
  const double DY = (M.displacement - YK) / 3.0;
  const double Y2 = YK + DY;
  const double Y3 = Y2 + DY;
  store_py(cmn, layer.NL, layer.ND, {{(H / D) * K * YK, YK}, parabola(Y2), parabola(Y3), M, U, end});
}

void sand(common& cmn, const py_layer& layer) {
  const auto PU = ultimate_resistance(cmn, layer, METHOD, 0.0);
  if (!PU) return;
  const bool steady = layer.ICYCL == 0;
  const auto AFACT = table_value(cmn, METHOD, DEPTH_RATIO, steady ? A_STATIC : A_CYCLIC, layer.H / layer.D);
  if (!AFACT) return;
  const auto BFACT = table_value(cmn, METHOD, DEPTH_RATIO, steady ? B_STATIC : B_CYCLIC, layer.H / layer.D);
  if (!BFACT) return;
  const double PHI = cmn.PHIR(layer.NL);
  double K = 543.0;
  if (PHI > 30.0) K = 1628.0;
  if (PHI > 36.0) K = 3393.0;
  const double KV = K;
  K = K * cmn.GAMWAT;
  note(cmn, equation_of("PY-284-S1"),
       {{"phi", PHI, in::degrees}, {"kv", KV}, {"gw", cmn.GAMWAT, in::weight}, {"k", K, in::weight}});
  const double PUU = *AFACT * *PU;
  const double PM = PUU * *BFACT / *AFACT;
  note(cmn, equation_of("PY-284-S2"),
       {{"X / D", layer.H / layer.D},
        {"A", *AFACT},
        {"B", *BFACT},
        {"pu", *PU, in::stress},
        {"pM", PM, in::stress},
        {"pU", PUU, in::stress}});
  store_sand(cmn, layer, K, {PM, layer.D / 60.0}, {PUU, layer.D * 3.0 / 80.0});
}

}  // namespace

void API84(common& cmn, layer_number NL, diameter_number ND) {
  const auto layer = open_py(cmn, NL, ND, cmn.EPS);
  if (!layer) return;
  if (is_sand(cmn, *layer, cmn.EPS)) return sand(cmn, *layer);
  if (is_stiff_clay(cmn, *layer)) return stiff_clay_curve(cmn, *layer, METHOD);
  if (const auto PU = ultimate_resistance(cmn, *layer, METHOD, cmn.SURED(NL)))
    soft_clay_curve_5(cmn, *layer, *PU);
}

}  // namespace tervak
