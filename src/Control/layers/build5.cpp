#include "Control/layers/build5.hpp"

#include "Control/layers/build5_pile_nodes.hpp"
#include "Control/layers/layer_profile.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"

namespace tervak {

namespace {

constexpr const char* WEIGHT_WARNING_5 = "(/,' WARNING FROM SR/BUILD5 : LAY,GAMEFF=',i5,f10.3)";
constexpr const char* NEGATIVE_SU_5 =
    "(/,' **** SR/BUILD5 : NEGATIVE SU VALUE CALCULATED',/,' LAY,TYP,SU0,SU100,ZLAY,SU=',2i5,4f10.3)";
constexpr const char* TWO_STRENGTHS_5 =
    "(/,' **** SR/BUILD5 : BOTH PHI AND SU ARE NON-ZERO',/,' LAY,PHI,SU=',i5,2f10.3)";

/// A layer's bottom by a pile node lies this far below the node.
constexpr double BELOW_NODE = 0.001;

void add_layer(common& cmn, int m, double ZBOTM) {
  ++cmn.NUMLAY;
  cmn.LAYCOD.append({m, cmn.PYCODM(m), cmn.TZCODM(m), cmn.QZCODM(m)});
  cmn.ZBOTM.append(ZBOTM);
}

void subdivide_by_counts(common& cmn) {
  cmn.MIDBOT = 1;
  cmn.NUMLAY = 0;
  // Z runs on over all main layers and is not reset to their bottoms, which it may miss by rounding.
  double Z = cmn.ZSEAFL;
  for (int m = 1; m <= cmn.NUMLAYM; ++m) {
    const double T = m == 1 ? cmn.ZSEAFL : cmn.ZMAIN(m - 1);
    if (cmn.EPS > cmn.NSUBM(m)) stop("Control\\build5", __LINE__, "**** SR/BUILD5 : Impossible error 100");
    const double H = (cmn.ZMAIN(m) - T) / cmn.NSUBM(m);
    for (int n = 1; n <= cmn.NSUBM(m); ++n) {
      Z = Z + H;
      add_layer(cmn, m, Z);
    }
  }
}

[[noreturn]] void refuse_tip_below_layers(common& cmn) {
  remark(
      cmn,
      "(/,' **** SR/BUILD5 : Pile ',i3.3,' used for layer sub-','division has its tip',/,' below the last main layer',/,' Z.last.layer, Z.pile.tip =',2f10.4)",
      cmn.NUMPIL, cmn.ZMAIN(cmn.NUMLAYM), cmn.ZNODE(cmn.NUMNOD));
  terminate_build5(cmn);
}

/// Walks nodes and main layers' bottoms downward together. Gives the main layer whose rest, and with it all
/// that lies below, is still to be added, or NUMLAYM + 1 if there is none.
int walk_nodes(common& cmn) {
  const double TOLZ = sp(0.002f);
  int m = 1;
  int k = 1;
  for (;;) {
    const double D = cmn.ZMAIN(m) - cmn.ZNODE(k);
    if (D > TOLZ) {
      if (!(cmn.ZSEAFL > cmn.ZNODE(k))) add_layer(cmn, m, cmn.ZNODE(k) + BELOW_NODE);
      if (k == cmn.NUMNOD) return m;
      ++k;
    } else if (-TOLZ > D) {
      if (m == cmn.NUMLAYM) refuse_tip_below_layers(cmn);
      add_layer(cmn, m, cmn.ZMAIN(m));
      ++m;
    } else {
      add_layer(cmn, m, cmn.ZNODE(k) + BELOW_NODE);
      if (m == cmn.NUMLAYM && k == cmn.NUMNOD) return cmn.NUMLAYM + 1;
      if (m < cmn.NUMLAYM) ++m;
      if (k < cmn.NUMNOD) ++k;
    }
  }
}

void subdivide_by_nodes(common& cmn) {
  cmn.MIDBOT = 2;
  read_pile_nodes(cmn);
  cmn.NUMLAY = 0;
  for (int j = walk_nodes(cmn); j <= cmn.NUMLAYM; ++j) add_layer(cmn, j, cmn.ZMAIN(j));
  // A last node on the bottom of a main layer above the last one gives its level twice.
  const double thinnest = sp(0.001f);
  for (int i = 2; i <= cmn.NUMLAY; ++i)
    if (cmn.ZBOTM(i) - cmn.ZBOTM(i - 1) < thinnest) cmn.ZBOTM(i) = cmn.ZBOTM(i - 1) + thinnest;
}

void subdivide(common& cmn) {
  if (cmn.NUMPIL == 0) {
    subdivide_by_counts(cmn);
  } else {
    subdivide_by_nodes(cmn);
  }
  if (cmn.NUMLAY > MOST_LAYERS) {
    remark(cmn, "(/,' **** SR/BUILD5 : Maximum allowed number of layers',' is reached. Max = ',i3)",
           MOST_LAYERS);
    terminate_build5(cmn);
  }
  set_layer_levels(cmn);
}

}  // namespace

void BUILD5(common& cmn, int IPASS) {
  if (IPASS == 2) {
    make_layer_profile(cmn, {cmn.EPS * 0.01, WEIGHT_WARNING_5, NEGATIVE_SU_5, TWO_STRENGTHS_5});
  } else {
    subdivide(cmn);
  }
}

}  // namespace tervak
