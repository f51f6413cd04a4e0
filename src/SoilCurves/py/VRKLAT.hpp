#pragma once

namespace tervak {

class note_listener;

/// Ultimate lateral resistance PULT of the VRK-80 curves as a stress: resistance per unit length over the
/// diameter.
///
/// Sand: a multiple of the passive earth pressure, 4.0 static, rising to 3.0 with depth when cyclic. Clay: SU
/// times a bearing factor that reaches 8.0 at 5 diameters (overconsolidated) or 10 diameters. Any consistent
/// units, PHI in degrees; OCR below 1.0E-12 is estimated as 4 * SU / SIGZ. The sand form is taken when SU is
/// below 1.0E-12: pass a literal 0.0 for sand, so that the layer's own SU plays no part.
///
/// NOTE, where not null, hears the steps.
/// IERR, where PULT stays 0: 1 no strength, 2 DEPTH, 3 SIGZ, 4 DIAM, 6 GAM not positive; the highest code
/// that applies is returned. Unlike in APILAT zero stress is an error.
void VRKLAT(double PHI, double SU, double DEPTH, double SIGZ, double DIAM, double GAM, int ICYCL, double OCR,
            double& PULT, int& IERR, note_listener* NOTE = nullptr);

}  // namespace tervak
