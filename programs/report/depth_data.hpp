#pragma once

#include <string>

#include "report/axial_capacity.hpp"
#include "report/rif_data.hpp"
#include "report/units.hpp"
#include "report/value_lists.hpp"

namespace tervak::report {

/// What the page draws over the level, as JSON:
///   windows[]  the choice of depth: name, y (axis of the levels)
///   plots[]    title, x (title of the axis), axes[] (of the values, by window), lines[]
///   lines[]    name (empty for a line of a diameter), d (diameter, -1 for all), v (list of the values by
///   layer), side
/// An axis is low, high and the list of its ticks. A value that a layer does not have is "-".
std::string depth_data(const profile& p, const std::vector<axial_capacity>& capacities, const units& u,
                       value_lists& lists);

}  // namespace tervak::report
