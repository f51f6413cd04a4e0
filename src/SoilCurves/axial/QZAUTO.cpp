#include "SoilCurves/axial/QZAUTO.hpp"

#include <algorithm>

#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/axial/automatic_curve.hpp"
#include "SoilCurves/axial/depth_table.hpp"

namespace tervak {

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
  lay_automatic_curve(qz_curves(cmn), NL, ND, ICODE, cmn.BIGDSP, {QM, ZC, 0.5 * QM, 2.0 * ZC},
                      {QM, ZT, 0.5 * QM, 2.0 * ZT});
}

}  // namespace tervak
