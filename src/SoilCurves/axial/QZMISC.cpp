#include "SoilCurves/axial/QZMISC.hpp"

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/axial/depth_table.hpp"
#include "SoilCurves/store/curve_side.hpp"

namespace tervak {

namespace {

/// Values at the level: tip stress, displacement at full stress over diameter, shear modulus, Poisson's
/// ratio.
struct tip_values {
  double Q = 0;
  double QD = 0;
  double G = 0;
  double NU = 0;
};

void lay_symmetric(common& cmn, layer_number NL, diameter_number ND, const curve_side& side) {
  lay_curve(qz_curves(cmn), NL, ND, side, side);
}

void api_curve(common& cmn, layer_number NL, diameter_number ND, double QM) {
  static constexpr curve_point SHAPE[] = {
      {0.25, sp(0.002f)}, {0.5, sp(0.013f)}, {0.75, sp(0.042f)}, {sp(0.9f), sp(0.073f)}, {1.0, sp(0.1f)}};
  note(cmn, equation_of("QZ-API-1"), {{"D", cmn.DIAM(ND), in::length}, {"qm", QM, in::stress}});
  curve_side side = scaled_side(SHAPE, QM, cmn.DIAM(ND));
  side.push_back({QM, side.back().displacement + cmn.BIGDSP});
  lay_symmetric(cmn, NL, ND, side);
}

void elastic_curve(common& cmn, layer_number NL, diameter_number ND, const tip_values& tip, double QM) {
  const double D = cmn.DIAM(ND);
  const double ESOIL = 2.0 * (1.0 + tip.NU) * tip.G;
  double DSPELAST = (1.0 - tip.NU * tip.NU) * sp(0.6f) * D / ESOIL * QM;
  const double DSPMAX = tip.QD * D;
  if (cmn.EPS > DSPELAST) DSPELAST = DSPMAX * 0.5;
  note(cmn, equation_of("QZ-200-1"), {{"nu", tip.NU}, {"G", tip.G, in::stress}, {"E", ESOIL, in::stress}});
  note(cmn, equation_of("QZ-200-2"),
       {{"qm", QM, in::stress}, {"D", D, in::length}, {"ze", DSPELAST, in::length}});
  note(cmn, equation_of("QZ-200-3"), {{"QZDRAT", tip.QD}, {"zm", DSPMAX, in::length}});
  const bool elastic = DSPMAX > DSPELAST;
  note(cmn, elastic ? equation_of("QZ-200-4") : equation_of("QZ-200-5"), elastic ? "ze < zm" : "ze >= zm",
       {{"qm", QM, in::stress}});
  if (elastic) {
    const double Z1 = DSPELAST * 0.5;
    const double H = (DSPMAX - Z1) / 3.0;
    return lay_symmetric(cmn, NL, ND,
                         {{0.5 * QM, Z1},
                          {sp(0.85f) * QM, Z1 + H},
                          {sp(0.97f) * QM, Z1 + 2.0 * H},
                          {QM, DSPMAX},
                          {QM, cmn.BIGDSP}});
  }
  remark(
      cmn,
      "(/,' **** WARNING FROM SR/QZMISC : INITIAL STIFFNESS ','PROBLEM',/,' LAYER,NDIA,ESOIL,DSPELAST,DSPMAX=',2i5,3e12.4)",
      NL, ND, ESOIL, DSPELAST, DSPMAX);
  lay_symmetric(cmn, NL, ND, {{QM, DSPMAX}, {QM, cmn.BIGDSP}});
}

}  // namespace

void QZMISC(common& cmn, layer_number NL, diameter_number ND, int ICODE) {
  tip_values tip;
  const int IERR = depth_values(cmn, NL, ND,
                                {{depth_column::SIGTIP, tip.Q},
                                 {depth_column::QZDRAT, tip.QD},
                                 {depth_column::G0SOIL, tip.G},
                                 {depth_column::POIS, tip.NU}});
  if (IERR != 0)
    return fail(cmn, 1,
                "(/,' **** SR/QZMISC : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=',i5)",
                IERR);
  if (cmn.REVISION == 5) {
    tip.Q = cmn.QTIP(NL);
    tip.G = cmn.GSOIL(NL);
  }
  const bool api = ICODE == 293 || ICODE == 214;
  if (!api) {
    if (cmn.REVISION != 4 && !(tip.G > cmn.EPS)) {
      note(cmn, equation_of("QZ-MAX-1"), "no shear modulus: above the local scour level",
           {{"qm", 0.0, in::stress}});
      return lay_symmetric(cmn, NL, ND, {{0.0, cmn.DIAM(ND) * sp(0.05f)}, {0.0, cmn.BIGDSP}});
    }
    if (cmn.EPS > tip.G || -cmn.EPS > tip.NU || tip.NU > sp(0.50001f))
      return fail(cmn, 1,
                  "(/,' **** SR/QZMISC : G-MODULUS OR POIS ERROR',/,' LAYER,NDIA,GMOD,POIS=',2i5,2e12.4)", NL,
                  ND, tip.G, tip.NU);
  }
  const double QM = tip.Q / cmn.SFSIGT;
  note(cmn, equation_of("QZ-MAX-1"),
       {{"qs", tip.Q, in::stress}, {"SFSIGT", cmn.SFSIGT}, {"qm", QM, in::stress}});
  if (api) return api_curve(cmn, NL, ND, QM);
  if (ICODE == 200) return elastic_curve(cmn, NL, ND, tip, QM);
  fail(cmn, 1, "(/,' **** SR/QZMISC : ICODE IS NOT 200, 214 OR 293  ICODE =',i5)", ICODE);
}

}  // namespace tervak
