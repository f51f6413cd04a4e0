#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Tip capacity in sand, NGI-05 (Clausen, Aas and Karlsrud 2005): a share of the mean cone resistance that
/// falls with the relative density.
///
/// SIGZ effective vertical stress; DR relative density, a fraction; CPTTIP, CPTAVR cone resistance at the
/// level and averaged around it, at most 2000 ATMPRS; DIAM, WALL of the pile, metres; IDOPCL 1 open, 2 closed
/// tip; QINS capacity of the soil plug, QICLAY of a clay plug; PLUGL length of the plug. Forces out: QPLGD
/// plugged, QINT plug, QCORE steel annulus; IDTIP 1 coring, 2 plugged. IERR: not 0 on entry asks for a trace
/// on that unit; 3 to 15 as in ICPXXTS; a later test wins, and the code goes to the run log.
void NGI05TS(common& cmn, double SIGZ, double DR, double CPTTIP, double CPTAVR, double DIAM, double WALL,
             int IDOPCL, double QINS, double QICLAY, double PLUGL, double ATMPRS, double& QPLGD, double& QINT,
             double& QCORE, int& IDTIP, int& IERR);

}  // namespace tervak
