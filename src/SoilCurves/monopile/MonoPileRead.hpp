#pragma once

#include <memory>

#include "Control/state/common.hpp"
#include "SoilCurves/monopile/IMonoPileDataProvider.hpp"
#include "TervakExchange/Tervak.hpp"

namespace Varno::TervakLibrary::SoilCurves {

/// Checks the monopile curves and modification lines of a profile and makes its curves of 29 points, for the
/// kinds whose flag is set, in the order M-theta, BM-theta, BS-Y. Puts the result into MONOPILE and returns
/// true.
///
/// At the first refusal of a kind it prints what that kind's checks found and returns false; MONOPILE and
/// IERR stay as they stand. Findings that refuse nothing (a repeated displacement) are printed only with a
/// refusal.
bool MonoPileRead(tervak::common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile,
                  std::shared_ptr<KestraCommonLibrary::CommonData::IMonoPileDataProvider>& MONOPILE);

}  // namespace Varno::TervakLibrary::SoilCurves
