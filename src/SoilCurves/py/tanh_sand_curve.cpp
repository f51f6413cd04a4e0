#include "SoilCurves/py/tanh_sand_curve.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

namespace {

constexpr std::array<double, 7> ANGLES{0.0, 29.0, 30.0, 36.0, 40.0, 45.0, 90.0};
constexpr std::array<double, 7> SUBMERGED{0.0, 272.0, 869.0, 2498.0, 4209.0, 5974.0, 5974.0};
constexpr std::array<double, 7> ABOVE_WATER{0.0, 272.0, 1222.0, 4263.0, 7549.0, 10183.0, 10183.0};

constexpr double FRACTIONS[] = {sp(0.111f), sp(0.222f), sp(0.333f), sp(0.444f), sp(0.555f),
                                sp(0.666f), sp(0.777f), sp(0.888f), sp(0.999f)};

}  // namespace

std::optional<double> modulus_by_water_level(common& cmn, const py_layer& layer, const py_method& method) {
  const bool dry = cmn.ZPWP > cmn.ZLAY(layer.NL);
  const auto KV = table_value(cmn, method, ANGLES, dry ? ABOVE_WATER : SUBMERGED, cmn.PHIR(layer.NL));
  if (KV)
    note(cmn, equation_of("PY-287-S1"), dry ? "above the water, Z < ZPWP" : "submerged, Z >= ZPWP",
         {{"Z", cmn.ZLAY(layer.NL), in::length},
          {"ZPWP", cmn.ZPWP, in::length},
          {"phi", cmn.PHIR(layer.NL), in::degrees},
          {"kv", *KV}});
  return KV;
}

double load_factor(const py_layer& layer, int ICYCL) {
  if (ICYCL == 1) return sp(0.9f);
  return std::max(sp(0.9f), 3.0 - layer.H * sp(0.8f) / layer.D);
}

void tanh_sand_curve(common& cmn, const py_layer& layer, double PU, double KV, double ZTOL) {
  const double A = load_factor(layer, layer.ICYCL);
  const double APU = A * PU;
  note(cmn, equation_of("PY-TANH-1"), layer.ICYCL == 1 ? "cyclic" : "static",
       {{"X", layer.H, in::length}, {"D", layer.D, in::length}, {"A", A}});
  note(cmn, equation_of("PY-TANH-2"),
       {{"kv", KV}, {"gw", cmn.GAMWAT, in::weight}, {"k", KV * cmn.GAMWAT, in::weight}});
  double DEN = APU * layer.D;
  if (DEN < ZTOL) DEN = 1.0;
  const double ZC = KV * cmn.GAMWAT * layer.H / DEN;
  const double YS = PU < ZTOL ? 1.0 : sp(3.8f) / ZC;
  curve_side branch;
  for (const double C : FRACTIONS) branch.push_back({0.0, YS * C});
  branch.push_back({0.0, cmn.BIGDSP});
  for (curve_point& point : branch) {
    const double X = 2 * ZC * point.displacement;
    const double E = std::exp(std::min(15.0, X));
    point.stress = ((E - 1.0) / (E + 1.0)) * APU;
  }
  note(cmn, equation_of("PY-TANH-3"),
       {{"A pu", APU, in::stress},
        {"y", branch.back().displacement, in::length},
        {"p", branch.back().stress, in::stress}});
  note(cmn, equation_of("PY-TANH-4"), {{"3.8 A pu D / (k X)", YS, in::length}});
  store_py(cmn, layer.NL, layer.ND, branch);
}

}  // namespace tervak
