#include "SoilCurves/py/NGIPy.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/py/py_frame.hpp"
#include "SoilCurves/py/soft_clay_curve.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

namespace {

double ultimate(const common& cmn, const py_layer& layer) {
  const double S = cmn.SURED(layer.NL);
  const double Z = cmn.SIGZRES(layer.NL);
  const double T = std::pow(layer.H / layer.D, sp(0.6f));
  const double W = std::max(cmn.EPS, Z);
  const double R = std::min(1.0, (S / W + 2.0) / 3.0);  // anisotropy of the strength
  const double SR = S / R;
  const double SC = SR * sp(0.69f);
  const double SE = SR * sp(0.53f);
  const double deep = SC * sp(11.9f);
  const double shallow = (SC + SE) * 0.5 * (T * 2.0 + 4.0) + Z;
  const double PU = std::min(deep, shallow);
  note(cmn, equation_of("PY-600-C1"),
       {{"Su", S, in::stress}, {"sig'", Z, in::stress}, {"s", SR, in::stress}});
  note(cmn, equation_of("PY-600-C2"),
       shallow < deep ? "wedge near the surface" : "flow at depth, 11.9 0.69 s",
       {{"X", layer.H, in::length},
        {"D", layer.D, in::length},
        {"11.9 0.69 s", deep, in::stress},
        {"0.5 (0.69 s + 0.53 s) (4 + 2 (X / D)^0.6) + sig'", shallow, in::stress},
        {"pu", PU, in::stress}});
  return PU;
}

double checked_stiffness_ratio(common& cmn, const py_layer& layer) {
  const double G = cmn.PYPARM(layer.TYP)[0];
  if (G < 25.0 || G > 2500.0) {
    remark(
        cmn,
        "(/,' **** SR/NGI11 : Non-accepted ratio Gmax/Su',/,' Layer,Type,Diameter,Gmax/Su =',2i5,f7.3,f8.2,/,/,' **** Run was stopped by SR/NGI11')",
        layer.NL, layer.TYP, layer.D, G);
    stop("SoilCurves\\NGIPy", 415, " ");
  }
  return G;
}

curve_side static_branch(const common& cmn, double D, double Y0, double G, double PU) {
  curve_side branch;
  for (const double Y : {Y0 * sp(0.03f), Y0 * sp(0.1f), Y0 * sp(0.3f), Y0 * sp(0.6f), Y0, 2 * Y0, 3.0 * Y0,
                         8.0 * Y0, cmn.BIGDSP}) {
    const double X = std::sqrt(Y / D) * G * sp(0.01f);
    double Q = 1.0;
    if (!(X > 5.0)) {
      const double E = std::exp(X + X);
      Q = (E - 1.0) / (E + 1.0);
    }
    branch.push_back({Q * PU, Y});
  }
  return branch;
}

/// The points below 3 Y0 are reduced in proportion to their share of the stress there, the rest in full.
void reduce_cyclic(const common& cmn, const py_layer& layer, double Y0, double PU, curve_side& branch) {
  const double GC = cmn.SIGZRES(layer.NL) / layer.H;  // stress from surface loads included
  const double ZR = cyclic_depth(cmn, layer, GC);
  const double PR = std::min(1.0, layer.H / ZR) * PU * sp(0.72f);
  branch[7] = {PR, 15.0 * Y0};
  branch[8].stress = PR;
  note(cmn, equation_of("PY-600-C5"), "cyclic", {{"XR", ZR, in::length}, {"pr", PR, in::stress}});
  const double C = cmn.PYPARM(layer.TYP)[1];
  const double PREF = branch[6].stress < cmn.EPS ? 1.0 : branch[6].stress;
  for (std::size_t i = 0; i < branch.size(); ++i) {
    const double Q = i < 6 ? branch[i].stress / PREF : 1.0;
    branch[i].stress = branch[i].stress / (Q * C + 1.0);
  }
  note(cmn, equation_of("PY-600-C6"), "cyclic", {{"C", C}, {"p_7", PREF, in::stress}});
}

}  // namespace

void NGI11(common& cmn, layer_number NL, diameter_number ND) {
  const auto layer = open_py(cmn, NL, ND, cmn.EPS);
  if (!layer) return;
  const double PU = ultimate(cmn, *layer);
  const double G = checked_stiffness_ratio(cmn, *layer);
  const double Y0 = layer->D * sp(0.025f);
  curve_side branch = static_branch(cmn, layer->D, Y0, G, PU);
  note(cmn, equation_of("PY-600-C4"), {{"D", layer->D, in::length}, {"y0", Y0, in::length}});
  note(cmn, equation_of("PY-600-C3"),
       {{"g", G}, {"y", branch[6].displacement, in::length}, {"p", branch[6].stress, in::stress}});
  if (layer->ICYCL == 1) reduce_cyclic(cmn, *layer, Y0, PU, branch);
  store_py(cmn, NL, ND, branch);
}

}  // namespace tervak
