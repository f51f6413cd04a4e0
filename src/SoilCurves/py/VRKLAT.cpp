#include "SoilCurves/py/VRKLAT.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/sp.hpp"

namespace tervak {

namespace {

constexpr double TOL = 1.0E-12;

double sand(double PHI, double DEPTH, double SIGZ, double DIAM, int ICYCL) {
  const double S = std::sin(PHI / 180.0 * 3.14159);
  const double KP = (1.0 + S) / (1.0 - S);
  const double C = ICYCL == 0 ? 4.0 : std::min(3.0, DEPTH * 1.5 / DIAM);
  return C * KP * SIGZ;
}

double clay(double SU, double DEPTH, double SIGZ, double DIAM, int ICYCL, double OCR) {
  const double R = OCR < TOL ? SU * 4.0 / SIGZ : OCR;
  const double M = R > sp(1.01f) ? 5.0 * DIAM : 10.0 * DIAM;
  const double NC = ICYCL == 0 ? std::min(8.0, 7.0 / M * DEPTH + 1.0) : std::min(8.0, 8.0 / M * DEPTH + 0.0);
  return SU * NC;
}

}  // namespace

void VRKLAT(double PHI, double SU, double DEPTH, double SIGZ, double DIAM, double GAM, int ICYCL, double OCR,
            double& PULT, int& IERR) {
  PULT = 0.0;
  IERR = 0;
  if (SU < TOL && PHI < TOL) IERR = 1;
  if (DEPTH < TOL) IERR = 2;
  if (SIGZ < TOL) IERR = 3;
  if (DIAM < TOL) IERR = 4;
  if (GAM < TOL) IERR = 6;
  if (IERR != 0) return;
  PULT = SU < TOL ? sand(PHI, DEPTH, SIGZ, DIAM, ICYCL) : clay(SU, DEPTH, SIGZ, DIAM, ICYCL, OCR);
}

}  // namespace tervak
