#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Tip capacity in sand by the Imperial College methods. MCSAND 3 is the form of Jardine and Chow (1996), 4
/// and 5 that of ICP-05 (Jardine, Chow, Overy and Standing 2005): a share of the mean cone resistance that
/// falls with the diameter, and for an open tip a test whether it plugs.
///
/// kPa and metres. SIGZ effective vertical stress; DR relative density, a fraction; CPTTIP, CPTAVR cone
/// resistance at the level and averaged around it; DIAM, WALL of the pile; IDOPCL 1 open, 2 closed tip; QINS
/// capacity of the soil plug. Forces out: QPLGD plugged, QPLUG plug, QCORE steel annulus; IDTIP 1 coring, 2
/// plugged. IERR: 1, 2 MCSAND; 3 SIGZ; 4, 5 DR; 6, 7 CPTTIP; 8, 9 CPTAVR; 10, 11 DIAM; 12 WALL; 13 inner
/// diameter; 14, 15 IDOPCL; a later test wins, and the code goes to the run log. Every call that passes the
/// checks prints its trace on the listing.
void ICPXXTS(common& cmn, int MCSAND, double SIGZ, double DR, double CPTTIP, double CPTAVR, double DIAM,
             double WALL, int IDOPCL, double QINS, double& QPLGD, double& QPLUG, double& QCORE, int& IDTIP,
             int& IERR);

}  // namespace tervak
