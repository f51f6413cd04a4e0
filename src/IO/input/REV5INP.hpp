#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// The main layers of a revision 5 profile: soil, pile and skin friction, subdivision and curve codes, taken
/// into the run state in run units and checked; then BUILD5 stage 1 makes the calculation layers, so that
/// NUMLAY, LAYCOD, ZBOTM and ZLAY stand. A main layer whose SUTOP + SUBOT is positive is a clay, any other a
/// sand. Cone resistances come in MPa in a deck in kN and m, and are held times 1000.
///
/// On a value that is not accepted: one message on the run log, IERR 4. Throws std::out_of_range where a
/// section holds fewer records than NUMLAYM.
///
/// Reads the profile, CONVERTER, NUMLAYM, GAMWAT and ZSEAFL. Writes the main layers (ZMAIN to PYPARM),
/// METHOD, the pile (DIAMP, WALL, ZTIP, MATPIL), NUMPIL, and what stage 1 of BUILD5 writes.
void REV5INP(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

}  // namespace tervak
