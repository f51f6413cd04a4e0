#pragma once

#include <string>

#include "report/rif_data.hpp"
#include "report/units.hpp"

namespace tervak::report {

/// "sand" or "clay", by the friction angle as everywhere in the system.
const char* soil_text(const layer& l);
/// The line under a layer's heading: level, soil, strength, methods.
std::string layer_summary(const layer& l, const units& u);
/// The diameters with their line styles.
std::string legend_html(const profile& p, const units& u);

/// All curves of one layer: plots, tables, marks. The page's script makes the same markup for the other
/// layers.
std::string layer_html(const profile& p, std::size_t index, const units& u);

/// The layer shown first: the first below the scour level.
std::size_t first_shown(const profile& p);

}  // namespace tervak::report
