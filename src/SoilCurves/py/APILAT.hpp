#pragma once

namespace tervak {

class note_listener;

/// Ultimate lateral resistance PULT of a pile as a stress: resistance per unit length over the diameter.
///
/// Sand: API RP 2A, 6.8.6, the lesser of the wedge near the surface and the flow at depth, in closed form
/// (C1, C2 and C3 of the chart with K0 = 0.4 and alpha = phi / 2). Clay: API RP 2A, 6.8.2 (Matlock 1970).
///
/// IYEAR edition of the rules, only checked; SU undrained strength, below 1.0E-6 the sand formula is taken;
/// APIJ factor J of the clay formula; PHI friction angle in degrees; DEPTH and DIAM lengths; SIGZ effective
/// vertical stress; GAM mean effective unit weight above; ICYCL 0 or 1, only checked. Any consistent units.
/// Both sand terms go with SIGZ, not with GAM * DEPTH, so surface loads and scour relief reach them.
///
/// NOTE, where not null, hears the steps.
/// IERR, where PULT stays 0: 1 no strength, 2 DEPTH, 3 negative SIGZ, 4 DIAM, 5 ICYCL, 6 negative GAM,
/// 7 IYEAR. The highest code that applies is returned.
void APILAT(int IYEAR, double SU, double APIJ, double PHI, double DEPTH, double SIGZ, double GAM, double DIAM,
            int ICYCL, double& PULT, int& IERR, note_listener* NOTE = nullptr);

}  // namespace tervak
