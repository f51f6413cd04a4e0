#pragma once

#include <cstddef>
#include <string>

#include "report/rif_data.hpp"
#include "report/units.hpp"

namespace tervak::report {

/// One SVG file, complete in itself: the P-Y, T-Z and Q-Z curves of all diameters of a layer side by side,
/// 900 units wide. What the drawing leaves out and what its letters mean stands below it.
std::string layer_picture(const profile& p, std::size_t index, const units& u);

}  // namespace tervak::report
