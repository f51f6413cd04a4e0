#pragma once

#include "Control/state/common.hpp"

namespace tervak {

// The sections of a revision 5 profile, in the order in which they are read. Each prints one message on the
// run log and leaves IERR 4 on a value that is not accepted.

/// Soil of the main layers: ZMAIN to KSOILM.
void read_main_layers(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

/// DIAMP, WALL, ZTIP, MATPIL. Asked of every profile, whether a layer wants its axial capacity or not.
void read_pile(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

/// METHOD and the given skin friction and tip stress, TCMTOP to TZZRSM. Values beside a method are used, and
/// warned of; so is the lack of both.
void read_skin_friction(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

/// NUMPIL, NSUBM, the curve codes, OPENM and PYPARM.
void read_subdivision(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

/// All sections number their records from 1: "m, number of the record".
inline constexpr const char* LAYER_SEQUENCE_ERROR = "(/,' **** SR/REV5INP : Layer sequence error',2i5)";

}  // namespace tervak
