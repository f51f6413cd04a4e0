#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Skin friction (TAUCMP, TAUTNS) and tip stress (QTIP) of each calculation layer of a revision 5 profile, by
/// the method that METHOD names for the main layer: "API-93", "ICP-05", "NGI-05", or blank for none. Runs
/// behind R5SOIL. Values that the deck gave stay; layers above the local scour level are passed over.
///
/// The methods take the strength with SFSU and SFTPHI undone, also where a friction angle from the
/// correlations never carried SFTPHI. A wall above a quarter of the diameter counts as a closed tip; a layer
/// below the tip stands as if at the tip. Every failure ends the run (fem::stop_info): a method's error
/// prints on the run log and the listing, a tip that does not plug on the run log only.
///
/// Reads METHOD, the pile (DIAMP, WALL, ZTIP, MATPIL) and the soil values of R5SOIL.
/// Writes TAUCMP, TAUTNS and QTIP where the deck gives none.
void R5AXCAP(common& cmn);

}  // namespace tervak
