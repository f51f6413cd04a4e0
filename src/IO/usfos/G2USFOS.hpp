#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Exports the finished curves of the present profile to the structural program USFOS: for each diameter (run
/// length unit) a SOILCHAR block, behind them the list of materials. Each curve becomes a material of force
/// per unit length (P-Y, T-Z) or force (Q-Z) against displacement, thinned to its corner points. F and L are
/// the factors printed in the block; they scale nothing here. MODE 1 writes MISOPL records, MODE 2 HYPELAST
/// and ELPLCURV. IERR becomes -1 on more than 5000 materials, empty ones counted, on two materials with one
/// number (MODE 2; diameters that round alike) and on any other MODE; it is left alone otherwise. The export
/// unit carries the messages.
/// A soil or material number beyond the range of an int throws std::out_of_range.
void G2USFOS(common& cmn, const vector1<double>& DIAM, double F, double L, int MODE, int UNIT, int& IERR);

}  // namespace tervak
