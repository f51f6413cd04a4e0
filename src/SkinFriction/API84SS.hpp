#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Unit skin friction in sand, API RP 2A, 6.4.3: K * SIGZ * tan(PHI - 5 degrees),
/// with a limit that grows from 48 to 115 kPa with the friction angle.
///
/// SIGZ effective vertical stress (run units); PHI degrees, used within 20 to 40; IOC 1 open, 2 closed tip.
/// TAUCMP, TAUTNS in the unit of SIGZ. IERR: a value above 0 on entry asks for a trace on that unit;
/// 1 SIGZ is zero, 2 PHI below 10 degrees (wins over 1). Results are undefined on an error.
void API84SS(common& cmn, double SIGZ, double PHI, int IOC, double& TAUCMP, double& TAUTNS, int& IERR);

}  // namespace tervak
