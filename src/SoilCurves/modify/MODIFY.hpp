#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// The pass over all finished curves of a profile, once, before anything is printed or written: takes the
/// stresses of dead layers away (first_live_layer.hpp), applies the factors PYMOD, TZMOD and QZMOD on live
/// layers, fills every curve out to MAXPNT points and checks that its displacements rise by EPS or more.
///
/// What surprises: PYLIMS only switches the stress limit on (strictly between 0 and 1); its factor is PYFEND,
/// which then also acts on the two far points of each side. On a curve of three points the inner far point is
/// the origin, twice. QZFNEG is 0 unless the deck says otherwise: a tip takes no tension. Filled-out points
/// repeat the end stress in steps of 1.0 of the run's length unit.
/// IERR 1: a gap pushes a P-Y curve past MAXPNT points, or displacements that do not rise.
///
/// Reads ZLAY and the scour for the dead layers, PYMOD, TZMOD and QZMOD. Writes the three families of curves:
/// stresses, displacements and numbers of points.
void MODIFY(common& cmn);

}  // namespace tervak
