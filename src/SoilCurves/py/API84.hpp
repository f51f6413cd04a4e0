#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// P-Y curve of layer NL and diameter ND for code 284, "API-84".
///
/// Sand: Reese, Cox and Koop (OTC 2080, 1974): a line, a parabola and a second line, with the factors A and B
/// by relative depth. Soft clay: Matlock in three sections. Clay above SUSTIF: PYStiffClay. Sand is tested
/// first, so a layer with a friction angle and a strength is sand. An exponent of the parabola below 1.01 is
/// replaced with a warning on the run log, and the run goes on. IERR 1 where the ultimate resistance, the
/// stiff clay or a lookup fails; the code stands in the message.
void API84(common& cmn, layer_number NL, diameter_number ND);

}  // namespace tervak
