#pragma once

#include <string>

#include "report/rif_data.hpp"
#include "report/units.hpp"

namespace tervak::report {

/// What the page's script draws from, as JSON:
///   box         width, height and margins of a plot
///   styles      by diameter: dash, marker path, fill
///   profiles[]  shown (index of the layer shown first), diameters, kinds[] (names), layers[]
///   layers[]    h: line under the heading; k[] by kind: x, y (low, high), xt, yt (ticks), n (note),
///               m (texts of marks), p (marks: diameter, point, letter),
///               c (by diameter: stress, displacement, stress, ...)
std::string page_data(const interface_file& file, const units& u);

}  // namespace tervak::report
