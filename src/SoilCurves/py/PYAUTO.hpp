#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// P-Y curve of a few points for layer NL and diameter ND, with the resistance of PYULT reached at a tenth of
/// the diameter. CODE 100 "LINEAR": one straight line without end; 101 "AUTO-1": two lines; 102 "AUTO-2":
/// three lines; 103 "AUTO-3": three lines and a fall to half the resistance. The caller has tested the range;
/// another code leaves the curve as found. A layer above the scour gets its resistance all the same.
void PYAUTO(common& cmn, layer_number NL, diameter_number ND, int CODE);

}  // namespace tervak
