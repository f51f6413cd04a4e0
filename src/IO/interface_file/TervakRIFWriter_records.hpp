#pragma once

#include <ostream>

#include "Control/state/common.hpp"

namespace Varno::TervakLibrary::IO {

/// RVSOILAY, one record a layer. False when the interpolation at a layer fails.
bool write_layers(std::ostream& stream, tervak::common& cmn, int PROFILE);

/// RVSOILPY, RVSOILQZ and RVSOILTZ of every layer and, within it, every diameter. Q-Z goes before T-Z. The
/// greatest stress, the steepest slope and the least stress are sought over all MAXPNT points, used or not.
void write_curves(std::ostream& stream, const tervak::common& cmn, int PROFILE);

/// RVSOILBM, RVSOILDM and RVSOILBS, as far as there are such data. MONOPILE must not be null.
void write_monopile(std::ostream& stream, const tervak::common& cmn, int PROFILE);

}  // namespace Varno::TervakLibrary::IO
