#pragma once

#include "TervakExchange/profile_reader.hpp"

namespace Vrsk::Plin::TervakExchange {

/// The rules that concern a profile as a whole: what is missing, how many rows, what needs what.
void check_profile(const profile_draft& draft, deck_faults& faults);

/// Fills in what follows from the rest: counts left out, the closing records of the lists of factors, the
/// side slope in radians.
void complete_profile(profile_draft& draft);

}  // namespace Vrsk::Plin::TervakExchange
