#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Unit skin friction in clay, API RP 2A, 6.4.2: alpha * SU with alpha from the
/// ratio SU / SIGZ, at most 1.
///
/// SIGZ effective vertical stress, SU undrained strength, TAUSKN the friction, all in one unit. IERR: a value
/// above 0 on entry asks for a trace on that unit; 1 SIGZ is zero, 2 SU is zero (wins over 1). TAUSKN is 0 on
/// an error.
void API87SC(common& cmn, double SIGZ, double SU, double& TAUSKN, int& IERR);

}  // namespace tervak
