#include "SoilCurves/py/APILAT.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"

namespace tervak {

namespace {

double tangent(double angle) { return std::sin(angle) / std::cos(angle); }

double sand(double PHI, double DEPTH, double SIGZ, double DIAM, note_listener* NOTE) {
  const double A = PHI / 180.0 * sp(3.14159f);
  const double B = A * 0.5 + 0.7853975296020508;  // 45 degrees by the same short pi
  const double TP = tangent(A);
  const double TB = tangent(B);
  const double SB = std::sin(B);
  const double C2 = std::cos(A / 2);
  const double T2 = tangent(A / 2);
  const double TD = tangent(B - A);
  const double K0 = sp(0.4f);
  const double T4 = std::pow(TB, 4);
  const double C3 = (T4 * T4 - 1.0) * TD * TD + TP * K0 * T4;
  const double PD = C3 * SIGZ;
  const double S1 = DEPTH * K0 * TP * SB / TD / C2;
  const double S2 = (DEPTH * TB * T2 + DIAM) * TB / TD + S1;
  const double S3 = (SB * TP - T2) * (DEPTH * K0 * TB) - DIAM * TD * TD;
  const double PS = (S2 + S3) * SIGZ / DIAM;
  const double PU = std::min(PS, PD);
  note(NOTE, equation_of("PY-SAND-1"), "", {{"phi", PHI, in::degrees}, {"K0", K0}});
  note(NOTE, equation_of("PY-SAND-4"), "", {{"C3", C3}});
  note(NOTE, equation_of("PY-SAND-5"), PD < PS ? "flow at depth" : "wedge near the surface",
       {{"X", DEPTH, in::length},
        {"D", DIAM, in::length},
        {"sig'", SIGZ, in::stress},
        {"(C1 X / D + C2) sig'", PS, in::stress},
        {"C3 sig'", PD, in::stress},
        {"pu", PU, in::stress}});
  return PU;
}

double clay(double SU, double APIJ, double DEPTH, double GAM, double DIAM, note_listener* NOTE) {
  const double shallow = DEPTH * GAM + 3.0 * SU + SU * APIJ * DEPTH / DIAM;
  const double PU = std::min(shallow, 9.0 * SU);
  note(NOTE, equation_of("PY-CLAY-1"),
       9.0 * SU < shallow ? "flow at depth, 9 Su" : "wedge near the surface, 3 Su + ...",
       {{"Su", SU, in::stress},
        {"gam", GAM, in::weight},
        {"J", APIJ},
        {"X", DEPTH, in::length},
        {"D", DIAM, in::length},
        {"3 Su + gam X + J Su X / D", shallow, in::stress},
        {"9 Su", 9.0 * SU, in::stress},
        {"pu", PU, in::stress}});
  return PU;
}

}  // namespace

void APILAT(int IYEAR, double SU, double APIJ, double PHI, double DEPTH, double SIGZ, double GAM, double DIAM,
            int ICYCL, double& PULT, int& IERR, note_listener* NOTE) {
  const double T = sp(1.0E-6f);
  PULT = 0.0;
  IERR = 0;
  if (SU < T && PHI < T) IERR = 1;
  if (DEPTH < T) IERR = 2;
  if (SIGZ < -T) IERR = 3;
  if (DIAM < T) IERR = 4;
  if (ICYCL != 0 && ICYCL != 1) IERR = 5;
  if (GAM < -T) IERR = 6;
  if (IYEAR < 1) IERR = 7;
  if (IERR != 0) return;
  PULT = SU < T ? sand(PHI, DEPTH, SIGZ, DIAM, NOTE) : clay(SU, APIJ, DEPTH, GAM, DIAM, NOTE);
}

}  // namespace tervak
