#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Tip capacity in sand, API RP 2A: NQ * SIGZ with a limit. MCSAND 2 takes both from the table of 6.4.3 by
/// friction angle, MCSAND 1 from formulas.
///
/// kPa and metres. SIGZ effective vertical stress; PHI degrees; SIGMAX limit that replaces the table's (0:
/// none); DIAM, WALL of the pile; QINS capacity of the soil plug; IDOPCL 1 open, 2 closed tip. Forces out:
/// QPLGD plugged full section, QINSO plug, QCORE steel annulus; IDTIP 1 coring, 2 plugged. IERR: not 0 on
/// entry asks for a trace on that unit; 1, 2 MCSAND, 3 SIGZ is zero, 4 PHI below 1 degree; the first that
/// hits, nothing printed. A failing table ends the run (fem::stop_info).
void APITipResistance(common& cmn, int MCSAND, double SIGZ, double PHI, double SIGMAX, double DIAM,
                      double WALL, double QINS, int IDOPCL, double& QPLGD, double& QINSO, double& QCORE,
                      int& IDTIP, int& IERR);

}  // namespace tervak
