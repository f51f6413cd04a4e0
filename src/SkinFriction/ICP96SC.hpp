#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Unit skin friction in clay, Imperial College method (Jardine and Chow 1996): radial effective stress from
/// OCR, sensitivity and the distance to the tip, times 0.8 and the tangent of the interface angle, which
/// falls with the plasticity index.
///
/// SIGZ effective vertical stress, SUCMP undrained strength (run units); OCR overconsolidation ratio: below
/// 0.1 it is derived from SUCMP / SIGZ and handed back, within 1 to 30; ST sensitivity; PLI plasticity index,
/// percent; RAT distance to the tip over the (equivalent) pile radius, at least 8. IERR: 1 SIGZ is zero, 2
/// RAT below 8, 3 PLI below 0.1, 4 neither OCR nor SUCMP, 5 ST below 0.9, 100 + N from Interpolate; a later
/// test wins. Unlike its fellows it prints its trace on the listing at every call that passes the checks.
void ICP96SC(common& cmn, double SIGZ, double& OCR, double SUCMP, double ST, double PLI, double RAT,
             double& TAUSKN, int& IERR);

}  // namespace tervak
