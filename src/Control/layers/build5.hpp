#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Layer build of a revision 5 profile, in two stages.
///
/// IPASS other than 2: subdivides the main layers into calculation layers, by counts (NUMPIL 0; level in the
/// layer's middle) or by the nodes of pile NUMPIL in PILEPLOT.TXT (level at the layer's bottom), and fills
/// NUMLAY, LAYCOD, ZBOTM, ZLAY and MIDBOT. The layer lists must be empty. Failures print on the run log and
/// end the run (fem::stop_info).
/// IPASS = 2: the vertical profile of make_layer_profile. Failures print on the run log and set IERR = 1.
///
/// Stage 1 reads ZMAIN, NSUBM, the codes of the main layers and NUMPIL; writes NUMLAY, LAYCOD, ZBOTM, ZLAY,
/// MIDBOT, with pile nodes also ZNODE, NUMNOD and PILHDR. Stage 2 reads and writes what make_layer_profile
/// does.
void BUILD5(common& cmn, int IPASS);

}  // namespace tervak
