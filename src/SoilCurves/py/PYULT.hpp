#pragma once

namespace tervak {

class note_listener;

/// Ultimate lateral resistance PULT as a stress by earth pressure, with terms for strength and stress that
/// add, so that a layer may have both (J. Brinch Hansen, 1961). PHI in RADIANS; SU, SIGZ and PULT in one
/// stress unit, DEPTH and DIAM in one length unit. At depth zero there is resistance.
/// NOTE, where not null, hears the steps.
void PYULT(double PHI, double SU, double DEPTH, double SIGZ, double DIAM, double& PULT,
           note_listener* NOTE = nullptr);

}  // namespace tervak
