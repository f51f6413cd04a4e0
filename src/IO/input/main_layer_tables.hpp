#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Fills the soil type table (one entry a main layer) and the depth table (2 * NUMLAYM + 1 rows) of a
/// revision 5 profile from its main layers, behind REV5INP. The rows of the depth table stand a millimetre
/// inside the main layer, so that each boundary is a jump.
///
/// The line of Su through a main layer starts at the bottom of calculation layer m - 1, not of main layer
/// m - 1; with subdivision the two differ. Less than a millimetre from there to the main layer's bottom stops
/// the run (fem::stop_info).
void map_main_layers(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

}  // namespace tervak
