#include "Control/layers/BUILD.hpp"

#include <algorithm>
#include <cmath>

#include "Control/layers/layer_profile.hpp"
#include "Control/state/note.hpp"
#include "Control/state/shear_modulus.hpp"

namespace tervak {

namespace {

constexpr const char* WEIGHT_WARNING = "(/,' WARNING FROM SR/BUILD : LAY,GAMEFF=',i5,f10.3)";
constexpr const char* NEGATIVE_SU =
    "(/,' **** SR/BUILD : NEGATIVE SU VALUE CALCULATED',/,' LAY,TYP,SU0,SU100,ZLAY,SU=',2i5,4f10.3)";
constexpr const char* TWO_STRENGTHS =
    "(/,' **** SR/BUILD : BOTH PHI AND SU ARE NON-ZERO',/,' LAY,PHI,SU=',i5,2f10.3)";

/// The layer that a level lies in; a level on a bottom belongs to the layer above it, one below all layers
/// to the last.
int layer_at(const common& cmn, double Z) {
  for (int k = 1; k <= cmn.NUMLAY; ++k)
    if (!(Z - cmn.ZBOTM(k) > cmn.EPS)) return k;
  return cmn.NUMLAY;
}

double sand_modulus(const common& cmn, int k, int j, double GF) {
  return std::sqrt(std::max(0.0, cmn.SIGZRES(k) / cmn.ATMPRS)) * std::tan(cmn.PHIR(k) * cmn.PI / 180) * 1000 *
         cmn.ATMPRS * GF * 0.5 / (cmn.POIS(j) + 1);
}

double clay_modulus(const common& cmn, int k, double GF) {
  double R = cmn.OCR(cmn.LAYCOD(k).TYP);
  // No power of 1.25 here, unlike in revision 5.
  if (cmn.EPS > R) R = 4 * cmn.SURED(k) / std::max(cmn.EPS, cmn.SIGZRES(k));
  return GF * clay_stiffness_ratio(R) * cmn.SURED(k);
}

void set_shear_moduli(common& cmn) {
  for (int j = 1; j <= cmn.NUMTQZ; ++j) {
    double& G0 = cmn.G0SOIL(j);
    if (G0 > cmn.EPS) continue;
    if (G0 > -cmn.EPS) G0 = -1;
    const double GF = std::abs(G0);
    const int k = layer_at(cmn, cmn.ZTQZ(j));
    G0 = cmn.PHIR(k) > cmn.EPS ? sand_modulus(cmn, k, j, GF) : clay_modulus(cmn, k, GF);
    if (cmn.EPS > G0) G0 = cmn.EPS;
    const bool sand = cmn.PHIR(k) > cmn.EPS;
    note_layer(cmn, k, sand ? equation_of("COR-G-1") : equation_of("COR-G-2"), sand ? "sand" : "clay",
               {{"Z", cmn.ZTQZ(j), in::length}, {"f", GF}, {"G", G0, in::stress}});
  }
}

}  // namespace

void BUILD(common& cmn) {
  set_layer_levels(cmn);
  if (make_layer_profile(cmn, {cmn.EPS, WEIGHT_WARNING, NEGATIVE_SU, TWO_STRENGTHS})) set_shear_moduli(cmn);
}

}  // namespace tervak
