#include "SkinFriction/API87SC.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "fem/write.hpp"
#include "SkinFriction/limits.hpp"

namespace tervak {

void API87SC(common& cmn, double SIGZ, double SU, double& TAUSKN, int& IERR) {
  const int trace = IERR;
  IERR = SU < NO_STRESS ? 2 : SIGZ < NO_STRESS ? 1 : 0;
  TAUSKN = 0.0;
  if (IERR == 0) {
    const double R = SU / SIGZ;
    const double A = R > 1 ? 0.5 * std::pow(R, -0.25) : 0.5 * std::pow(R, -0.5);
    TAUSKN = std::min(A, 1.0) * SU;
    note(cmn, equation_of("AX-API-C1"), {{"Su", SU, in::stress}, {"sig'", SIGZ, in::stress}, {"psi", R}});
    note(cmn, equation_of("AX-API-C2"),
         A > 1.0 ? "alpha at most 1"
         : R > 1 ? "psi > 1"
                 : "psi <= 1",
         {{"alpha", std::min(A, 1.0)}});
    note(cmn, equation_of("AX-API-C3"), "clay", {{"tc", TAUSKN, in::stress}, {"tt", TAUSKN, in::stress}});
  }
  if (trace > 0)
    fem::write(cmn.units, trace,
               "(/,' Routine API87SC trace print',/,'   SIGZ   ','      SU         TAUSKN',/,1p,3e11.3)",
               SIGZ, SU, TAUSKN);
}

}  // namespace tervak
