#include "SoilCurves/py/VRKLAT.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"

namespace tervak {

namespace {

constexpr double TOL = 1.0E-12;

double sand(double PHI, double DEPTH, double SIGZ, double DIAM, int ICYCL, note_listener* NOTE) {
  const double S = std::sin(PHI / 180.0 * 3.14159);
  const double KP = (1.0 + S) / (1.0 - S);
  const double C = ICYCL == 0 ? 4.0 : std::min(3.0, DEPTH * 1.5 / DIAM);
  const double PU = C * KP * SIGZ;
  note(NOTE, equation_of("PY-380-S1"), ICYCL == 0 ? "static" : "cyclic",
       {{"phi", PHI, in::degrees},
        {"X", DEPTH, in::length},
        {"D", DIAM, in::length},
        {"sig'", SIGZ, in::stress},
        {"C", C},
        {"pu", PU, in::stress}});
  return PU;
}

double clay(double SU, double DEPTH, double SIGZ, double DIAM, int ICYCL, double OCR, note_listener* NOTE) {
  const double R = OCR < TOL ? SU * 4.0 / SIGZ : OCR;
  const double M = R > sp(1.01f) ? 5.0 * DIAM : 10.0 * DIAM;
  const double NC = ICYCL == 0 ? std::min(8.0, 7.0 / M * DEPTH + 1.0) : std::min(8.0, 8.0 / M * DEPTH + 0.0);
  const double PU = SU * NC;
  note(NOTE, equation_of("PY-380-C2"), ICYCL == 0 ? "static" : "cyclic",
       {{"Su", SU, in::stress},
        {"X", DEPTH, in::length},
        {"M", M, in::length},
        {"Nc", NC},
        {"pu", PU, in::stress}});
  return PU;
}

}  // namespace

void VRKLAT(double PHI, double SU, double DEPTH, double SIGZ, double DIAM, double GAM, int ICYCL, double OCR,
            double& PULT, int& IERR, note_listener* NOTE) {
  PULT = 0.0;
  IERR = 0;
  if (SU < TOL && PHI < TOL) IERR = 1;
  if (DEPTH < TOL) IERR = 2;
  if (SIGZ < TOL) IERR = 3;
  if (DIAM < TOL) IERR = 4;
  if (GAM < TOL) IERR = 6;
  if (IERR != 0) return;
  PULT = SU < TOL ? sand(PHI, DEPTH, SIGZ, DIAM, ICYCL, NOTE) : clay(SU, DEPTH, SIGZ, DIAM, ICYCL, OCR, NOTE);
}

}  // namespace tervak
