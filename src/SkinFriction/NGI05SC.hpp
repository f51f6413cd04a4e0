#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Unit skin friction in clay, NGI-05 (Karlsrud, Clausen and Aas 2005): alpha * SU. Alpha is that of a
/// normally consolidated clay, by plasticity, up to SU / SIGZ = 0.25, then log-linear to 0.5 at 1, then
/// falling; a lower bound by plasticity holds for soft clays.
///
/// SIGZ effective vertical stress, SU undrained strength, TAUSKN the friction, all in one unit; PLI
/// plasticity index, percent; IOPEN 1 open, 0 closed tip (any other code is an error). IERR: a value above 0
/// on entry asks for a trace on that unit; 1 SIGZ, 2 PLI, 3 SU zero; 4 IOPEN below 0, 5 above 1; a later test
/// wins. On an error TAUSKN is 0, the trace goes to unit 13 and a line to the run log.
void NGI05SC(common& cmn, double SIGZ, double SU, double PLI, int IOPEN, double& TAUSKN, int& IERR);

}  // namespace tervak
