#pragma once

#include <string>

#include "report/rif_data.hpp"
#include "report/units.hpp"

namespace tervak::report {

/// Plots over the level: effective stress, strength and friction angle (where a layer has them), moduli, and
/// the peak P-Y, T-Z and Q-Z resistance by diameter.
std::string depth_plots(const profile& p, const units& u);

/// The peaks of the plots as a table: greatest P-Y stress, T-Z and Q-Z in compression and tension, by layer
/// and diameter.
std::string peak_table(const profile& p);

/// Greatest stress (side 1) or the smallest with its sign (side -1) of a curve; 0 of one without points.
double peak_stress(const curve& c, int side);

}  // namespace tervak::report
