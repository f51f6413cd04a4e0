#include "TipResistance/APITipResistance.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "Control/state/Interpolate.hpp"
#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "TipResistance/tip_constants.hpp"

namespace tervak {

namespace {

constexpr std::array<double, 5> PHI_TABLE{20, 25, 30, 35, 40};
constexpr std::array<double, 5> NQ_TABLE{8, 12, 20, 40, 50};
constexpr std::array<double, 5> QL_TABLE{1.9, 2.9, 4.8, 9.6, 12};  // MPa

struct unit_resistance {
  double QMAX = 0, QSIG = 0;
};

int check(int MCSAND, double SIGZ, double PHI) {
  if (MCSAND < 1) return 1;
  if (MCSAND > 2) return 2;
  if (SIGZ < NO_TIP_STRESS) return 3;
  if (PHI < 1) return 4;
  return 0;
}

unit_resistance by_table(common& cmn, double SIGZ, double PHI, double SIGMAX, int& IERR) {
  const double P = std::clamp(PHI, 20.0, 40.0);
  double NQ = 0;
  double QL = 0;
  KestraCommonLibrary::Utils::Interpolate(5, 1, PHI_TABLE, NQ_TABLE, P, NQ, IERR);
  if (IERR == 0) KestraCommonLibrary::Utils::Interpolate(5, 1, PHI_TABLE, QL_TABLE, P, QL, IERR);
  if (IERR != 0) remark(cmn, "(/,' **** SR/APITipResistance : Error from SR/INTPOL  IERR=',i5)", IERR);
  return {SIGMAX > NO_TIP_STRESS ? SIGMAX : QL * 1000, NQ * SIGZ};
}

unit_resistance by_formula(double SIGZ, double PHI) {
  const double P = std::clamp(PHI, 20.0, 35.0);
  const double X = P / 180 * 3.14159;
  const double T = std::tan(X / 2 + QUARTER_PI);
  double NQ = 4 * P - 100;
  if (P < 30) NQ = sp(11.6f) * (T * T) * std::tan(X);
  if (P > 35) NQ = 2 * P - 30;
  NQ = std::min(NQ, 40.0);
  return {std::min(265 * std::pow(T, 5.5), 10000.0), NQ * SIGZ};
}

}  // namespace

void APITipResistance(common& cmn, int MCSAND, double SIGZ, double PHI, double SIGMAX, double DIAM,
                      double WALL, double QINS, int IDOPCL, double& QPLGD, double& QINSO, double& QCORE,
                      int& IDTIP, int& IERR) {
  int trace = IERR;
  IERR = check(MCSAND, SIGZ, PHI);
  if (IERR != 0) return;

  const unit_resistance unit = MCSAND == 2 ? by_table(cmn, SIGZ, PHI, SIGMAX, IERR) : by_formula(SIGZ, PHI);
  if (IERR == 0) {
    const double Q = std::min(unit.QMAX, unit.QSIG);
    note(cmn, equation_of("AX-API-T1"), unit.QMAX < unit.QSIG ? "sand, limit ql" : "sand",
         {{"phi", PHI, in::degrees},
          {"Nq sig'", unit.QSIG, in::kilopascal},
          {"1000 ql", unit.QMAX, in::kilopascal},
          {"q", Q, in::kilopascal}});
    const double DI = DIAM - 2 * WALL;
    QPLGD = DIAM * DIAM * QUARTER_PI * Q;
    QCORE = (DIAM * DIAM * QUARTER_PI - DI * DI * QUARTER_PI) * Q;
    QINSO = QINS;
    IDTIP = QINS + QCORE > QPLGD ? 2 : 1;
    if (IDOPCL == 2) {
      IDTIP = 2;
      QINSO = 0;
      QCORE = 0;
    }
  } else if (trace == 0) {
    trace = cmn.NFLOG;
  }
  if (trace != 0)
    fem::write(
        cmn.units, trace,
        "(/,' SR/APITipResistance trace print',/,' MCSAND  SIGZ   PHI   ','SIGMAX   DIAM   WALL    QINS    QPLGD    QCORE IDTIP IERR',/,i5,f8.1,f6.1,f9.1,f7.3,f7.3,f9.1,f9.1,f9.1,2i4)",
        MCSAND, SIGZ, PHI, SIGMAX, DIAM, WALL, QINS, QPLGD, QCORE, IDTIP, IERR);
  if (IERR != 0) stop("TipResistance\\APITipResistance", __LINE__, "**** Run stopped by SR/APITPS");
}

}  // namespace tervak
