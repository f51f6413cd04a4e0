#include "SkinFriction/API87SC.hpp"

#include <algorithm>
#include <cmath>

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
  }
  if (trace > 0)
    fem::write(cmn.units, trace,
               "(/,' Routine API87SC trace print',/,'   SIGZ   ','      SU         TAUSKN',/,1p,3e11.3)",
               SIGZ, SU, TAUSKN);
}

}  // namespace tervak
