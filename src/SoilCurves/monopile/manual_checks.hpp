#pragma once

#include <ostream>

#include "Control/state/common.hpp"
#include "SoilCurves/monopile/MonoPileData.hpp"

namespace Varno::TervakLibrary::SoilCurves {

/// Checks a manual curve against DIAM and NUMLAY of the profile and for 2 to 15 points that start at the
/// origin. Writes its finding, without a line end, into the stream; false refuses the curve.
///
/// The origin test is one-sided: a negative first value passes. A displacement that does not rise is told,
/// but does not refuse.
[[nodiscard]] bool CheckManualCurve(const tervak::common& cmn, std::ostream& stream,
                                    const MonoPileData& view);

/// Checks a modification line: layer range, diameter, factors above zero. `line` is its number within the
/// section, counted from 1. LAY1 is checked against LAY2 only.
[[nodiscard]] bool CheckModification(const tervak::common& cmn, std::ostream& stream, int line,
                                     const MonoPileDataModification& view);

/// All curves of a section in deck order, up to the first refusal.
[[nodiscard]] bool ValidateManualData(const tervak::common& cmn, std::ostream& stream,
                                      const MonoPileKind& kind,
                                      const Vrsk::Plin::TervakExchange::ManualMonopileSection& section);

/// All modification lines of a section in deck order, up to the first refusal.
[[nodiscard]] bool ValidateModifications(
    const tervak::common& cmn, std::ostream& stream, const MonoPileKind& kind,
    const Vrsk::Plin::TervakExchange::MonopileModificationSection& section);

}  // namespace Varno::TervakLibrary::SoilCurves
