#include "SoilCurves/py/PYULT.hpp"

#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"

namespace tervak {

void PYULT(double PHI, double SU, double DEPTH, double SIGZ, double DIAM, double& PULT, note_listener* NOTE) {
  const double PI4 = 4 * std::atan(1.0);
  const double T = sp(1.0E-6f);
  const double S = std::sin(PHI);
  const double C = std::cos(PHI);
  const double TP = S / C;
  const bool ZERO = TP < T;
  const double X2 = PI4 * 0.25 - PHI / 2;
  const double X3 = PI4 * 0.25 + PHI / 2;
  const double T3 = std::tan(X3);
  const double S3 = std::sin(X3);
  const double T2 = std::tan(X2);

  // Coefficients at the surface (0) and at great depth (I), for stress (Q) and strength (C).
  const double E1 = std::exp(2 * X3 * TP) * C * T3;
  const double KQ0 = E1 - std::exp(-(2 * X2 * TP)) * C * T2;
  const double DT = ZERO ? 1.0 : TP;
  const double KC0 = ZERO ? PI4 * 0.5 + 1.0 : (E1 - 1.0) / DT;
  const double NC = ZERO ? PI4 + 2.0 : (std::exp(TP * PI4) * T3 * T3 - 1.0) / DT;
  const double KCI = NC * (TP * TP * TP * TP * sp(4.09f) + sp(1.58f));
  const double KQI = KCI * (1.0 - S) * TP;

  double W1 = KQI - KQ0;
  if (W1 < T) W1 = 1.0;
  const double AQ = KQ0 / W1 * (1.0 - S) * S / S3;
  double W2 = KCI - KC0;
  if (W2 < T) W2 = 1.0;
  const double AC = 2.0 * KC0 / W2 * S3;
  const double DD = DEPTH / DIAM;
  PULT = (AC * KCI * DD + KC0) / (AC * DD + 1.0) * SU + (AQ * KQI * DD + KQ0) / (AQ * DD + 1.0) * SIGZ;
  note(NOTE, equation_of("PY-EARTH-1"), "", {{"KQ0", KQ0}});
  note(NOTE, equation_of("PY-EARTH-2"), ZERO ? "phi = 0" : "", {{"KC0", KC0}});
  note(NOTE, equation_of("PY-EARTH-3"), "", {{"Nc", NC}});
  note(NOTE, equation_of("PY-EARTH-4"), "", {{"KCI", KCI}, {"KQI", KQI}});
  note(NOTE, equation_of("PY-EARTH-5"), "", {{"aq", AQ}, {"ac", AC}});
  note(NOTE, equation_of("PY-EARTH-6"), "",
       {{"X/D", DD}, {"Su", SU, in::stress}, {"sig'", SIGZ, in::stress}, {"pu", PULT, in::stress}});
}

}  // namespace tervak
