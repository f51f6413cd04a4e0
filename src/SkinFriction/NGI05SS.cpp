#include "SkinFriction/NGI05SS.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"
#include "fem/write.hpp"
#include "SkinFriction/limits.hpp"

namespace tervak {

void NGI05SS(common& cmn, double SIGZ, double DR, double ZTIP, double ZNOW, int IDOPCL, double& TAUCMP,
             double& TAUTNS, int& IERR) {
  const int trace = IERR;
  const double ZG = cmn.ZSEAFL + cmn.SCRGEN;
  double ZT = ZTIP - ZG;
  const double ZN = ZNOW - ZG;
  if (ZN > ZT) ZT = ZN;
  IERR = 0;
  if (SIGZ < NO_STRESS) IERR = 1;
  if (DR < 0 || DR > 2.0) IERR = 2;
  if (ZT - ZN < -NO_STRESS) IERR = 3;
  if (IERR != 0) return;

  const double D1 = std::max(NO_STRESS, DR - sp(0.1f));
  const double F1 = sp(2.1f) * std::pow(D1, sp(1.7f));
  const double F2 = std::pow(SIGZ / 100, 0.25);
  const double F3 = IDOPCL == 2 ? sp(1.6f) : 1.0;
  const double F4 = cmn.MATPIL == 2 ? sp(1.2f) : 1.0;
  const double T = F2 * F1 * F3 * F4 * 100 * ZN / ZT;
  TAUTNS = std::max(T, sp(0.1f) * SIGZ);
  TAUCMP = std::max(sp(1.3f) * T, sp(0.1f) * SIGZ);
  note(cmn, equation_of("AX-NGI-S1"),
       {{"zn", ZN, in::length},
        {"zt", ZT, in::length},
        {"Dr", DR},
        {"sig'", SIGZ, in::stress},
        {"Ftip", F3},
        {"Fmat", F4},
        {"tau", T, in::stress}});
  note(cmn, equation_of("AX-NGI-S2"), TAUCMP > sp(0.1f) * SIGZ ? "sand" : "sand, lower limit",
       {{"tt", TAUTNS, in::stress}, {"tc", TAUCMP, in::stress}});
  if (trace > 0)
    fem::write(
        cmn.units, trace,
        "(/,' Routine NGI05SS trace print',/,'   SIGZ       DR    ','     ZTIP       ZNOW     IDOPCL  TAUCMP       TAUTNS ',/,1p,4e11.3,0p,i4,1p,2e13.3)",
        SIGZ, DR, ZTIP, ZNOW, IDOPCL, TAUCMP, TAUTNS);
}

}  // namespace tervak
