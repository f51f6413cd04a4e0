#include "TipResistance/tip_checks.hpp"

#include "Control/state/sp.hpp"
#include "TipResistance/tip_constants.hpp"

namespace tervak {

int check_tip_arguments(int IERR, double SIGZ, double DR, double CPTTIP, double CPTAVR, double QMAX,
                        double DIAM, double WALL, int IDOPCL) {
  if (SIGZ < NO_TIP_STRESS) IERR = 3;
  if (DR < 0) IERR = 4;
  if (DR > 1.5) IERR = 5;
  if (CPTTIP < NO_TIP_STRESS) IERR = 6;
  if (CPTTIP > QMAX) IERR = 7;
  if (CPTAVR < NO_TIP_STRESS) IERR = 8;
  if (CPTAVR > QMAX) IERR = 9;
  if (DIAM < sp(0.05f)) IERR = 10;
  if (DIAM > 10) IERR = 11;
  if (WALL < sp(0.001f)) IERR = 12;
  if (DIAM - 2 * WALL < -NO_TIP_STRESS) IERR = 13;
  if (IDOPCL < 1) IERR = 14;
  if (IDOPCL > 2) IERR = 15;
  return IERR;
}

}  // namespace tervak
