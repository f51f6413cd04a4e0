#include "TipResistance/ICPXXTS.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "TipResistance/tip_checks.hpp"
#include "TipResistance/tip_constants.hpp"

namespace tervak {

namespace {

constexpr double CONE = 0.036;  // diameter of the penetrometer's cone, m

int check_form(int MCSAND) {
  if (MCSAND < 3) return 1;
  if (MCSAND > 5) return 2;
  return 0;
}

bool plugs(int MCSAND, double DR, double CPTAVR, double DIAM, double DI) {
  const double limit = 2 * (DR - sp(0.3f));
  if (MCSAND == 3) return limit > DIAM;
  return !(DI > limit) && !(DI / CONE > CPTAVR * sp(0.083f) / 100);
}

double closed_tip_stress(int MCSAND, double CPTAVR, double DR36) {
  const double CF = MCSAND == 3 ? sp(0.13f) : sp(0.3f);
  return std::max((1 - 0.5 * std::log10(DR36)) * CPTAVR, CF * CPTAVR);
}

double open_tip_stress(int MCSAND, double CPTAVR, double DR36) {
  const double CO = MCSAND == 3 ? sp(0.065f) : sp(0.15f);
  return std::max((0.5 - 0.25 * std::log10(DR36)) * CPTAVR, CO * CPTAVR);
}

}  // namespace

void ICPXXTS(common& cmn, int MCSAND, double SIGZ, double DR, double CPTTIP, double CPTAVR, double DIAM,
             double WALL, int IDOPCL, double QINS, double& QPLGD, double& QPLUG, double& QCORE, int& IDTIP,
             int& IERR) {
  IERR = check_tip_arguments(check_form(MCSAND), SIGZ, DR, CPTTIP, CPTAVR, 200000, DIAM, WALL, IDOPCL);
  if (IERR != 0) {
    remark(cmn, "(/,' **** SR/ICPXXTS ERROR   IERR =',i6)", IERR);
    return;
  }
  const double DI = DIAM - 2 * WALL;
  const double AF = DIAM * DIAM * QUARTER_PI;
  const double AN = AF - DI * DI * QUARTER_PI;
  const double DR36 = DIAM / CONE;
  if (IDOPCL == 2) {
    QPLGD = closed_tip_stress(MCSAND, CPTAVR, DR36) * AF;
    note(cmn, equation_of("AX-ICP-T1"), "sand, closed",
         {{"qcm", CPTAVR, in::stress}, {"D", DIAM, in::length}});
    QPLUG = 0;
    QCORE = 0;
    IDTIP = 2;
  } else {
    const double QP = open_tip_stress(MCSAND, CPTAVR, DR36) * AF;
    const double QA = AN * CPTTIP;
    QCORE = QA;
    const bool plugged = plugs(MCSAND, DR, CPTAVR, DIAM, DI);
    note(cmn, equation_of("AX-ICP-T2"), plugged ? "sand, plugged" : "sand, not plugged",
         {{"Di", DI, in::length}, {"Dr", DR}, {"qcm", CPTAVR, in::stress}});
    note(cmn, plugged ? equation_of("AX-ICP-T3") : equation_of("AX-ICP-T4"),
         {{"qc", CPTTIP, in::stress}, {"D", DIAM, in::length}, {"As / Ap", AN / AF}});
    if (plugged) {
      QPLGD = std::max(QP, QA);
      double QS = QA + QINS;
      if (QPLGD > QS) QS = QPLGD * 1.5;
      QPLUG = QS - QA;
      IDTIP = 2;
    } else {
      QPLGD = QA > QP ? QA * 1.5 : QP;
      QPLUG = 0;
      IDTIP = 1;
    }
  }
  fem::write(
      cmn.units, cmn.NFLIS,
      "(/,' Routine ICPXXTS trace print',/,' MCSAND  SIGZ   DR','   CPTTIP  CPTAVR   DIAM   WALL IDOPCL   QINS',/,i5,f8.1,f6.2,f8.0,f8.0,f7.3,f7.3,i5,1p,e12.3,/,'   QPLGD      QCORE     IDTIP   IERR',/,2e11.3,0p,i5,i6)",
      MCSAND, SIGZ, DR, CPTTIP, CPTAVR, DIAM, WALL, IDOPCL, QINS, QPLGD, QCORE, IDTIP, IERR);
}

}  // namespace tervak
