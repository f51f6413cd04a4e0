#pragma once

// The run from which the numbers of the manual are made, those of docs/methods and of docs/validation.md.

#include <string>

#include "Control/state/common.hpp"

namespace manual {

/// A revision 5 run of two equal main layers of one layer each, from the sea floor at 0 to 4 and to 10 m,
/// with levels 2 and 7 m, in kN and m. The pages say so.
struct run : tervak::common {
  run();
};

/// Sets what an input says: "name value, name value, ...", in kN, m, kPa and degrees. False when it cannot be
/// read. A name of a layer value sets both layers; a later name takes precedence.
bool prepare(tervak::common& cmn, const std::string& input);

}  // namespace manual
