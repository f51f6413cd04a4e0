#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Prints the result pages of the present profile on the listing, unit NFLIS: the summary of the layers; from
/// JPRINT 2 on the curves, a page for each diameter and layer, the monopile curves in the same order, and the
/// given soil displacements. `version` (10 characters), `date` (11) and `time`, that of the run start, stand
/// in the head of every page. Sets no error code. A BS-Y or BM-theta curve shorter than the M-theta curve
/// that it stands beside throws std::out_of_range.
void PRINT(common& cmn, fem::text_ref version, fem::text_ref date, const time_array& time);

}  // namespace tervak
