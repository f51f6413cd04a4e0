#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Positive branch of the P-Y curve of a stiff clay, 11 points with the origin first: Reese, Cox and Koop
/// (OTC 2312, 1975), stiff clay below the water table. Kilonewtons and metres only.
///
/// NZ points of depths ZTAB (ascending) and undrained strengths SUTAB; GAM mean effective unit weight; DIAM
/// diameter; ICYCL 0 static, else cyclic; ZZ depth of the curve; ZSCR scour depth. P gets the resistance per
/// unit length, Y the displacement. A depth above the scour gets a curve without resistance.
/// P(9) may be negative behind a steep fall; only P(10) and P(11) are floored at zero.
///
/// The run state serves the trace only, which goes to the run log when ITRACE is not 0.
/// IERR: 10 + the code of Interpolate where the strengths cannot be looked up (12: depths out of order),
/// 20 + the code for the factors A and B.
void PYStiffClay(common& cmn, int NZ, const vector1<double>& ZTAB, const vector1<double>& SUTAB, double GAM,
                 double DIAM, int ICYCL, double ZZ, double ZSCR, int ITRACE, vector1<double>& P,
                 vector1<double>& Y, int& IERR);

}  // namespace tervak
