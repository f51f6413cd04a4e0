#pragma once

#include "Control/state/common.hpp"

namespace tervak {

// The soil of a revision 4 profile, taken into the run state in run units. On a value that is not accepted:
// one message on the run log, IERR 4. A table with fewer records than its count throws std::out_of_range.

/// NUMTYP soil types: GAMTOT to TZZRES by type. OCR and API J are judged for clays only (a type without
/// friction angle). Zero EPS50, API J of a clay and TRESMX become 0.01, 0.25 and 1.0.
void read_soil_types(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

/// ZONINF, RFTZ and the NUMTQZ rows of the depth table. Zero displacement ratios become 0.01 (T-Z) and 0.05
/// (Q-Z), a shear modulus that is not given becomes -1.0.
void read_depth_table(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

/// The layers: each record covers layers L1 to L2, which share its thickness evenly. Appends to ZBOTM and
/// LAYCOD; records behind the one that reaches NUMLAY are not looked at.
void read_layers(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

}  // namespace tervak
