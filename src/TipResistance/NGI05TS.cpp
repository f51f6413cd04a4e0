#include "TipResistance/NGI05TS.hpp"

#include <algorithm>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "TipResistance/tip_checks.hpp"
#include "TipResistance/tip_constants.hpp"

namespace tervak {

void NGI05TS(common& cmn, double SIGZ, double DR, double CPTTIP, double CPTAVR, double DIAM, double WALL,
             int IDOPCL, double QINS, double QICLAY, double PLUGL, double ATMPRS, double& QPLGD, double& QINT,
             double& QCORE, int& IDTIP, int& IERR) {
  const int trace = IERR;
  const double QCUP = ATMPRS * 2000;
  IERR = check_tip_arguments(0, SIGZ, DR, CPTTIP, CPTAVR, QCUP, DIAM, WALL, IDOPCL);
  if (IERR != 0) {
    remark(cmn, "(/,' **** SR/NGI05TS ERROR   IERR =',i6)", IERR);
    return;
  }
  const double DI = 2 * (DIAM / 2 - WALL);
  const double AF = DIAM * DIAM * QUARTER_PI;
  if (IDOPCL != 2) {
    QPLGD = CPTAVR * sp(0.7f) / (3 * (DR * DR) + 1) * AF;
    note(cmn, equation_of("AX-NGI-T1"), "sand, open", {{"qcm", CPTAVR, in::stress}, {"Dr", DR}});
    QCORE = (AF - DI * DI * QUARTER_PI) * CPTTIP;
    const double K = std::min(3.0, PLUGL * sp(0.2f) / DI + 1);
    QINT = K * (QINS - QICLAY) + QICLAY;
    IDTIP = QINT + QCORE > QPLGD ? 2 : 1;
  } else {
    QPLGD = CPTAVR * sp(0.8f) / (DR * DR + 1) * AF;
    note(cmn, equation_of("AX-NGI-T2"), "sand, closed", {{"qcm", CPTAVR, in::stress}, {"Dr", DR}});
    QINT = 0;
    QCORE = 0;
    IDTIP = 2;
  }
  if (trace != 0)
    fem::write(
        cmn.units, trace,
        "(/,' Routine NGI05TS trace print',/,'    SIGZ   DR','   CPTTIP  CPTAVR   DIAM   WALL IDOPCL   QINS       QICLAY',/,f8.1,f6.2,f8.0,f8.0,f7.3,f7.3,i5,1p,2e12.3,/,'   QPLGD      QCORE     IDTIP   IERR',/,2e11.3,0p,i6,i7)",
        SIGZ, DR, CPTTIP, CPTAVR, DIAM, WALL, IDOPCL, QINS, QICLAY, QPLGD, QCORE, IDTIP, IERR);
}

}  // namespace tervak
