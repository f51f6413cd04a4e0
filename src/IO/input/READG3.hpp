#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// The last input step: manual curves and modification factors of the three curve families, then the given
/// soil displacements, in run units. The layers and their codes stand already, because manual curves belong
/// to the layers with curve code 0. MIDPNT is the slot of a curve's origin.
///
/// On a value that is not accepted: one message on the run log, IERR 4. Throws std::out_of_range where a list
/// holds fewer records, or a curve fewer displacements, than are asked for.
///
/// Reads the profile, CONVERTER, LAYCOD, DIAM and the counts. Writes the points of curves of code 0 (PYSTR,
/// PYDSP, NPYPNT and those of T-Z and Q-Z), PYMOD, TZMOD, QZMOD, and DSPLEV to HOLDIA.
void READG3(common& cmn, int MIDPNT, const Vrsk::Plin::TervakExchange::Tervak& profile);

}  // namespace tervak
