#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Unit skin friction in sand, NGI-05 (Clausen, Aas and Karlsrud 2005): grows with relative density, with the
/// fourth root of the stress and linearly with the level over the tip level; at least 0.1 * SIGZ.
///
/// Metres and kPa as published. SIGZ effective vertical stress; DR relative density, a fraction; ZTIP, ZNOW
/// levels of the tip and of the layer, measured from the general scour level (ZSEAFL + SCRGEN of the run
/// state); a tip above the layer counts as at the layer. IDOPCL 1 open, 2 closed tip. MATPIL of the run state
/// 2 adds a fifth. IERR: a value above 0 on entry asks for a trace on that unit; 1 SIGZ is zero, 2 DR
/// outside 0 to 2, 3 layer below the tip (cannot arise). A later test wins. No results on an error.
void NGI05SS(common& cmn, double SIGZ, double DR, double ZTIP, double ZNOW, int IDOPCL, double& TAUCMP,
             double& TAUTNS, int& IERR);

}  // namespace tervak
