#include "SoilCurves/py/APILAT.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/sp.hpp"

namespace tervak {

namespace {

double tangent(double angle) { return std::sin(angle) / std::cos(angle); }

double sand(double PHI, double DEPTH, double SIGZ, double DIAM) {
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
  const double PD = ((T4 * T4 - 1.0) * TD * TD + TP * K0 * T4) * SIGZ;
  const double S1 = DEPTH * K0 * TP * SB / TD / C2;
  const double S2 = (DEPTH * TB * T2 + DIAM) * TB / TD + S1;
  const double S3 = (SB * TP - T2) * (DEPTH * K0 * TB) - DIAM * TD * TD;
  const double PS = (S2 + S3) * SIGZ / DIAM;
  return std::min(PS, PD);
}

}  // namespace

void APILAT(int IYEAR, double SU, double APIJ, double PHI, double DEPTH, double SIGZ, double GAM, double DIAM,
            int ICYCL, double& PULT, int& IERR) {
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
  PULT = SU < T ? sand(PHI, DEPTH, SIGZ, DIAM)
                : std::min(DEPTH * GAM + 3.0 * SU + SU * APIJ * DEPTH / DIAM, 9.0 * SU);
}

}  // namespace tervak
