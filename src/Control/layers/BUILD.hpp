#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Layer build of a revision 4 profile: levels (MIDBOT is the deck's), the vertical profile of
/// make_layer_profile, and the shear modulus of the depth table.
///
/// A G0SOIL above EPS was given by the deck and stays. Otherwise it is the negative of a factor on a
/// calculated modulus, 0 meaning 1. IERR = 1 behind a message on the run log when the strength fails; the
/// steps behind it are left undone.
///
/// Reads the soil types, the depth table, the layers' ZBOTM and LAYCOD, and what make_layer_profile reads.
/// Writes ZLAY, the values of make_layer_profile, and G0SOIL.
void BUILD(common& cmn);

}  // namespace tervak
