#include "SkinFriction/API84SS.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"
#include "fem/write.hpp"
#include "SkinFriction/limits.hpp"

namespace tervak {

void API84SS(common& cmn, double SIGZ, double PHI, int IOC, double& TAUCMP, double& TAUTNS, int& IERR) {
  const int trace = IERR;
  // The limit takes the angle as given, the friction the angle within 20 to 40.
  const double LIM = std::clamp(sp(3.35f) * PHI - 19, 48.0, 115.0) * cmn.ATMPRS / sp(101.3f);
  IERR = PHI < 10 ? 2 : SIGZ < NO_STRESS ? 1 : 0;
  if (IERR != 0) return;

  const double P = std::clamp(PHI, 20.0, 40.0);
  const double X = (P - 5) * 3.14159 / 180;
  const double KC = IOC == 2 ? 1.0 : 0.8;
  const double KT = KC;
  TAUCMP = KC * SIGZ * std::tan(X);
  TAUTNS = TAUCMP / KC * KT;
  const double TOP = LIM > NO_STRESS ? LIM : std::clamp(sp(3.35f) * P - 19, 48.0, 115.0);
  TAUCMP = std::min(TAUCMP, TOP);
  TAUTNS = std::min(TAUTNS, TOP);
  note(cmn, equation_of("AX-API-S1"), {{"phi", P, in::degrees}, {"delta", P - 5, in::degrees}});
  note(cmn, equation_of("AX-API-S2"), {{"phi", PHI, in::degrees}, {"tl", TOP, in::stress}});
  note(cmn, equation_of("AX-API-S3"), TAUCMP < TOP ? "sand" : "sand, limit tl",
       {{"K", KC}, {"sig'", SIGZ, in::stress}, {"tc", TAUCMP, in::stress}, {"tt", TAUTNS, in::stress}});
  if (trace > 0)
    fem::write(
        cmn.units, trace,
        "(/,' Routine API84SS trace print',/,'   SIGZ       PHI','   IOC   TAUCMP     TAUTNS',/,1p,e11.3,0p,f7.1,i4,1x,1p,2e11.3)",
        SIGZ, PHI, IOC, TAUCMP, TAUTNS);
}

}  // namespace tervak
