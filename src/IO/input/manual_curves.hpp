#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Curves given by hand: one record for each diameter of each layer whose code in the family is 0, in that
/// order. Sets the point counts and stores the points as given; PYMAN, TZMAN and QZMAN make whole curves of
/// them. On a value that is not accepted, or a record that no layer asks for: one message on the run log,
/// IERR 4.

/// One side of the curve, from (0, 0): 2 to MIDPNT points, stored at MIDPNT and up.
void read_manual_py(common& cmn, int MIDPNT, const Vrsk::Plin::TervakExchange::Tervak& profile);

/// The whole curve through its origin: 2 to MAXPNT points, stored at 1 and up.
void read_manual_tz(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);
void read_manual_qz(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

}  // namespace tervak
