#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// The IERR of read_general_values when the profile has more diameters than the run can hold. This one
/// failure is reported without the lines of the deck.
constexpr int TOO_MANY_DIAMETERS = 1;

/// Takes the general values of a profile into the run state, in run units, and checks them: labels, scale
/// factors, counts, water, print switches, safety factors, diameters, soil moduli, sea floor and scour. Makes
/// the CONVERTER of the profile. On a value that is not accepted it prints one message on the run log and
/// leaves IERR (4, or TOO_MANY_DIAMETERS). Switches out of range are clamped, scale factors that are not
/// positive become 1.0.
void read_general_values(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

}  // namespace tervak
