#include "SoilCurves/axial/QZAUTO.hpp"

#include <algorithm>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/axial/automatic_curve.hpp"
#include "SoilCurves/axial/depth_table.hpp"

namespace tervak {

namespace {

const equation& qz_step(int ICODE) {
  if (ICODE == 100) return equation_of("QZ-100-2");
  if (ICODE == 101) return equation_of("QZ-101-1");
  return ICODE == 102 ? equation_of("QZ-102-1") : equation_of("QZ-103-1");
}

}  // namespace

void QZAUTO(common& cmn, layer_number NL, diameter_number ND, int ICODE) {
  double Q = 0, R = 0;
  const int IERR = depth_values(cmn, NL, ND, {{depth_column::SIGTIP, Q}, {depth_column::QZDRAT, R}});
  if (IERR != 0)
    return fail(cmn, 1,
                "(/,' **** SR/QZAUTO : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=',i5)",
                IERR);
  const double QM = (cmn.REVISION == 5 ? cmn.QTIP(NL) : Q) / cmn.SFSIGT;
  const double D = cmn.DIAM(ND);
  const double ZC = D * R;
  // Written like the tension side of TZAUTO; it equals ZC unless the tip stress vanishes or ZC is tiny.
  const double ZT = std::max(D * sp(0.00001f), ZC / std::max(cmn.EPS, QM) * QM);
  note(cmn, equation_of("QZ-MAX-1"), {{"SFSIGT", cmn.SFSIGT}, {"qm", QM, in::stress}});
  note(cmn, equation_of("QZ-100-1"), {{"QZDRAT", R}, {"D", D, in::length}, {"zm", ZC, in::length}});
  note(cmn, qz_step(ICODE), {{"qm", QM, in::stress}});
  lay_automatic_curve(qz_curves(cmn), NL, ND, ICODE, cmn.BIGDSP, {QM, ZC, 0.5 * QM, 2.0 * ZC},
                      {QM, ZT, 0.5 * QM, 2.0 * ZT});
}

}  // namespace tervak
