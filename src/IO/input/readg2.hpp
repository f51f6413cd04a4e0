#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Takes the surface loads and the soil of a profile into the run state, in run units.
///
/// Revision 4: soil types, depth table and layers as the deck gives them; ZBOTM and LAYCOD are appended to.
/// Revision 5: REV5INP reads and subdivides the main layers, then the soil and depth tables are filled from
/// them, so that all later stages work on one model.
///
/// On a value that is not accepted: one message on the run log, IERR 4. Throws std::out_of_range where a
/// table holds fewer records than its count.
///
/// Reads the profile, CONVERTER, the counts, GAMWAT and ZSEAFL. Writes the surface loads, the soil types
/// (GAMTOT to TZZRES), ZONINF, RFTZ, NUMTQZ and the depth table; in revision 4 ZBOTM and LAYCOD, in revision
/// 5 what REV5INP writes.
void READG2(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

}  // namespace tervak
