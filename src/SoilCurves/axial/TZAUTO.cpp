#include "SoilCurves/axial/TZAUTO.hpp"

#include <algorithm>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/axial/automatic_curve.hpp"
#include "SoilCurves/axial/depth_table.hpp"

namespace tervak {

namespace {

const equation& tz_step(int ICODE) {
  if (ICODE == 100) return equation_of("TZ-100-3");
  if (ICODE == 101) return equation_of("TZ-101-1");
  return ICODE == 102 ? equation_of("TZ-102-1") : equation_of("TZ-103-1");
}

}  // namespace

void TZAUTO(common& cmn, layer_number NL, diameter_number ND, int ICODE) {
  double TC = 0, TT = 0, R = 0;
  const int IERR = depth_values(
      cmn, NL, ND, {{depth_column::TCMP, TC}, {depth_column::TTNS, TT}, {depth_column::TZDRAT, R}});
  if (IERR != 0)
    return fail(cmn, 1,
                "(/,' **** SR/TZAUTO : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=',i5)",
                IERR);
  double TMC = TC / cmn.SFSKF;
  double TMT = TT / cmn.SFSKF;
  const double D = cmn.DIAM(ND);
  const double ZC = D * R;
  const double ZT = std::max(D * sp(0.00001f), ZC / std::max(cmn.EPS, TMC) * TMT);
  if (cmn.REVISION == 5) {
    TMC = cmn.TAUCMP(NL) / cmn.SFSKF;
    TMT = cmn.TAUTNS(NL) / cmn.SFSKF;
  }
  const int t = cmn.LAYCOD(NL).TYP;
  const double FR = cmn.EPS > cmn.TRESMX(t) ? 1.0 : cmn.TRESMX(t);
  const double ZR = cmn.EPS > cmn.TZZRES(t) ? D * sp(0.01f) : cmn.TZZRES(t);
  note(cmn, equation_of("TZ-MAX-1"),
       {{"SFSKF", cmn.SFSKF}, {"tc", TMC, in::stress}, {"tt", TMT, in::stress}});
  note(cmn, equation_of("TZ-100-1"), {{"TZDRAT", R}, {"D", D, in::length}, {"zc", ZC, in::length}});
  note(cmn, equation_of("TZ-100-2"), {{"zt", ZT, in::length}});
  note(cmn, tz_step(ICODE), {{"rt", FR}, {"zr", ZR, in::length}});
  lay_automatic_curve(tz_curves(cmn), NL, ND, ICODE, cmn.BIGDSP, {TMC, ZC, FR * TMC, ZR + ZC},
                      {TMT, ZT, FR * TMT, ZT + ZR});
}

}  // namespace tervak
