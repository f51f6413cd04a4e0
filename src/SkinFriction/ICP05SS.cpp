#include "SkinFriction/ICP05SS.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"
#include "fem/write.hpp"
#include "SkinFriction/limits.hpp"

namespace tervak {

namespace {

int check(int MCSAND, double SIGZ, double QCPT, double DISTH, double RAD, double WALL, double DELTAF,
          double D50, int IDOPCL) {
  int IERR = 0;
  if (MCSAND < 4) IERR = -1;
  if (MCSAND > 5) IERR = -2;
  if (SIGZ < NO_STRESS) IERR = 1;
  if (QCPT < NO_STRESS) IERR = 2;
  if (DISTH < -NO_STRESS) IERR = 3;
  if (RAD < sp(0.01f)) IERR = 4;
  if (WALL < sp(0.001f)) IERR = 5;
  if (DELTAF < NO_STRESS && D50 < NO_STRESS) IERR = 6;
  if (IDOPCL != 1 && IDOPCL != 2) IERR = 7;
  if (RAD - WALL < -NO_STRESS) IERR = 8;
  return IERR;
}

/// Stress from the sand that dilates as it is sheared: a radial step of 0.02 mm against the stiffness GD.
double dilation_stress(double SIGZ, double QCPT, double RAD) {
  const double Q = QCPT / std::sqrt(SIGZ * 100);
  double GD = sp(0.0203f) + sp(0.00125f) * Q - sp(1.216E-6f) * (Q * Q);
  GD = std::max(GD, sp(0.02f));
  return 2 * (QCPT / GD) * sp(2.0E-5f) / RAD;
}

/// The simplified form: B of which 0.023 is compression and 0.016 tension.
double simplified_base(double SIGZ, double QCPT, double H, double RAD, double WALL, int IDOPCL, double T) {
  const double inner = (2 * (RAD - WALL)) / (2 * RAD);
  const double AR = IDOPCL == 2 ? 1.0 : 1 - inner * inner;
  const double L4 = 4 * std::sqrt(AR);
  const double HD = H / (2 * RAD);
  return QCPT * std::pow(SIGZ / 100, sp(0.1f)) * std::pow(AR, 0.2) * std::pow(std::max(L4, HD), -0.4) * T;
}

}  // namespace

void ICP05SS(common& cmn, int MCSAND, double SIGZ, double QCPT, double DISTH, double RAD, double WALL,
             double DELTAF, double D50, int IDOPCL, double& TAUCMP, double& TAUTNS, int& IERR) {
  const int trace = IERR;
  IERR = check(MCSAND, SIGZ, QCPT, DISTH, RAD, WALL, DELTAF, D50, IDOPCL);
  if (IERR != 0) return;

  const double H = std::max(NO_STRESS, DISTH);
  double HR = IDOPCL == 1 ? H / std::sqrt(RAD * RAD - (RAD - WALL) * (RAD - WALL)) : H / RAD;
  HR = std::max(HR, 8.0);
  const double DSIG = dilation_stress(SIGZ, QCPT, RAD);
  const double DLT = DELTAF < NO_STRESS ? std::clamp(23 - 6 * std::log10(D50), 23.0, 35.0) : DELTAF;
  const double T = std::tan(DLT * 3.14159 / 180);
  const double SRC = QCPT * sp(0.029f) * std::pow(SIGZ / 100, sp(0.13f)) * std::pow(HR, sp(-0.38f));
  TAUCMP = (SRC + DSIG) * T;
  TAUTNS = (sp(0.8f) * SRC + DSIG) * T;
  if (IDOPCL == 1) TAUTNS = TAUTNS * sp(0.9f);
  note(cmn, equation_of("AX-ICP-S1"),
       {{"qc", QCPT, in::stress}, {"sig'", SIGZ, in::stress}, {"h / Rs", HR}, {"src", SRC, in::stress}});
  note(cmn, equation_of("AX-ICP-S3"), {{"R", RAD, in::length}, {"dsrd", DSIG, in::stress}});
  note(cmn, equation_of("AX-ICP-S4"), "sand", {{"delta", DLT, in::degrees}, {"tc", TAUCMP, in::stress}});
  note(cmn, equation_of("AX-ICP-S5"), IDOPCL == 1 ? "open, f = 0.9" : "closed, f = 1",
       {{"tt", TAUTNS, in::stress}});
  if (MCSAND != 4) {
    const double B = simplified_base(SIGZ, QCPT, H, RAD, WALL, IDOPCL, T);
    TAUCMP = sp(0.023f) * B;
    TAUTNS = sp(0.016f) * B;
  }
  if (trace > 0)
    fem::write(
        cmn.units, trace,
        "(/,' Routine ICP05SS trace print',/,'   SIGZ       QCPT','       DISTH      RAD        WALL       DELTAF     D50',/,1p,7e11.3,/,'   IDOPCL     TAUCMP     TAUTNS',/,0p,i6,f15.3,f10.3)",
        SIGZ, QCPT, DISTH, RAD, WALL, DELTAF, D50, IDOPCL, TAUCMP, TAUTNS);
}

}  // namespace tervak
