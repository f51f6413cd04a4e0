#pragma once

#include <string>

namespace fem::utils {

/// Renders a value as a G field of width w with d significant digits: as F where it lies between 0.1 and 10
/// to the power of d and fits, else as E under the scale factor k.
std::string general_to_string(double value, int w, int d, int k);

}  // namespace fem::utils
