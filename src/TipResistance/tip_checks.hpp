#pragma once

namespace tervak {

/// What the cone methods for the tip ask of their arguments; QMAX is the greatest cone resistance accepted.
/// Gives `IERR` back when all is well, else the code of the last test that hits: 3 SIGZ; 4, 5 DR; 6, 7
/// CPTTIP; 8, 9 CPTAVR; 10, 11 DIAM; 12 WALL; 13 inner diameter; 14, 15 IDOPCL.
int check_tip_arguments(int IERR, double SIGZ, double DR, double CPTTIP, double CPTAVR, double QMAX,
                        double DIAM, double WALL, int IDOPCL);

}  // namespace tervak
