#include "SoilCurves/py/PYRCK.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "Control/state/Interpolate.hpp"
#include "Control/state/note.hpp"
#include "Control/state/report.hpp"

namespace tervak {

using KestraCommonLibrary::Utils::Interpolate;

namespace {

constexpr std::array<double, 5> DEPTH_RATIO{0.0, 1.0, 2.0, 4.0, 1000.0};
constexpr std::array<double, 5> A_FACTOR{0.2, 0.42, 0.55, 0.6, 0.6};
constexpr std::array<double, 5> B_FACTOR{0.2, 0.28, 0.3, 0.3, 0.3};

struct strength_table {
  int NZ;
  const vector1<double>& Z;
  const vector1<double>& SU;
};

/// Mean of the strengths at `count` depths from `top` on; LAST gets the deepest.
double mean_strength(const strength_table& table, int count, double top, double spacing, double& LAST,
                     int& IERR) {
  double sum = 0.0;
  for (int i = 0; i < count; ++i) {
    Interpolate(table.NZ, 1, table.Z, table.SU, top + i * spacing, LAST, IERR);
    if (IERR != 0) {
      IERR += 10;
      return 0.0;
    }
    sum += LAST;
  }
  return sum / count;
}

double factor(table_view row, double ratio, int& IERR) {
  double value = 0.0;
  Interpolate(5, 1, DEPTH_RATIO, row, ratio, value, IERR);
  if (IERR != 0) IERR += 20;
  return value;
}

double modulus(double H, double SU) {
  const double STFK = H * 271500.0;
  if (SU < 95.8) return STFK * 0.5;
  if (SU > 191.6) return STFK * 2.0;
  return STFK;
}

double strain(double SU) {
  if (SU < 95.8) return 0.007;
  if (SU > 191.6) return 0.004;
  return 0.005;
}

struct clay_values {
  double PC, AFACT, STFK, EPSC;
};

void static_curve(const common& cmn, const clay_values& clay, double DIAM, vector1<double>& P,
                  vector1<double>& Y) {
  const auto [PC, AFACT, STFK, EPSC] = clay;
  const double YC = EPSC * DIAM;
  const double YA = YC * AFACT;
  const double PH = PC * 0.5;
  const double root = PH / STFK / std::sqrt(YC);
  const double YI = root * root;
  note(cmn, equation_of("PY-STIFF-7"), {{"A", AFACT}, {"yc", YC, in::metre}, {"ya", YA, in::metre}});
  note(cmn, equation_of("PY-STIFF-8"),
       YI > YA ? "parabola alone, the two do not meet up to ya" : "initial line, then parabola",
       {{"ks X", STFK, in::kilopascal},
        {"0.5 Pc", PH, in::kn_per_metre},
        {"(0.5 Pc / (ks X))^2 / yc", YI, in::metre}});
  Y(1) = P(1) = 0.0;
  double y = 0.0;
  for (int i = 2; i <= 4; ++i) {
    y += YA / 3.0;
    Y(i) = y;
    P(i) = std::sqrt(y / YC) * PH;
    if (!(YI > YA)) P(i) = std::min(P(i), STFK * y);
  }
  y = Y(4);
  for (int i = 5; i <= 8; ++i) {
    y += YA * 5.0 * 0.25;
    Y(i) = y;
    P(i) = std::sqrt(y / YC) * PH - std::pow((y - YA) / YA, 1.25) * PC * 0.055;
  }
  const double Q = std::sqrt(AFACT * 6.0) * PH - PC * 0.411;
  Y(9) = YA * 7.0;
  P(9) = Q - (Y(9) - AFACT * 6.0 * YC) * (0.0625 / YC) * PC;
  Y(10) = AFACT * 18.0 * YC;
  P(10) = Q - PC * 0.75 * AFACT;
  if (P(10) < 0.0) P(10) = 0.0;
  Y(11) = DIAM * 1000.0;
  P(11) = P(10);
  note(cmn, equation_of("PY-STIFF-9"), {{"y", Y(8), in::metre}, {"P", P(8), in::kn_per_metre}});
  note(cmn, equation_of("PY-STIFF-10"), {{"18 ya", Y(10), in::metre}, {"P", P(10), in::kn_per_metre}});
}

void cyclic_curve(common& cmn, const clay_values& clay, double BFACT, double DIAM, int ITRACE,
                  vector1<double>& P, vector1<double>& Y) {
  const double PC = clay.PC;
  const double YC = clay.EPSC * DIAM;
  const double YP = clay.AFACT * 4.1 * YC;
  const double BPC = BFACT * PC;
  const double STFK = clay.STFK * 0.4;
  const double Y5 = YP * 0.45;
  const double DY = Y5 * 0.25;
  const bool CUT = BPC < Y5 * STFK;
  if (ITRACE != 0)
    remark(cmn, "('   B-FACT     STFK       BPC        YC         YP',9x,'Y5',/,1p,6e11.3)", BFACT, STFK, BPC,
           YC, YP, Y5);
  note(cmn, equation_of("PY-STIFF-7"), {{"A", clay.AFACT}, {"yc", YC, in::metre}, {"yp", YP, in::metre}});
  note(cmn, equation_of("PY-STIFF-11"), CUT ? "at most the initial line" : "power law alone",
       {{"B", BFACT},
        {"ks X", STFK, in::kilopascal},
        {"B Pc", BPC, in::kn_per_metre},
        {"0.45 yp ks X", Y5 * STFK, in::kn_per_metre}});
  const auto power_law = [&](double y) { return (1.0 - std::pow(std::abs(y - Y5) / Y5, 2.5)) * BPC; };
  for (int i = 1; i <= 5; ++i) {
    const double y = (i - 1) * DY;
    Y(i) = y;
    P(i) = power_law(y);
    if (CUT) P(i) = std::min(P(i), STFK * y);
  }
  double y = Y(5);
  for (int i = 6; i <= 8; ++i) {
    y += YP * 0.15 / 3.0;
    Y(i) = y;
    P(i) = power_law(y);
  }
  const double Q = BFACT * 0.936 * PC;
  Y(9) = YP * 0.7;
  P(9) = Q - (Y(9) - YP * 0.6) * (PC * 0.085 / YC);
  Y(10) = YP * 1.8;
  P(10) = Q - PC * 0.102 * YP / YC;
  if (P(10) < 0.0) P(10) = 0.0;
  Y(11) = DIAM * 1000.0;
  P(11) = P(10);
  note(cmn, equation_of("PY-STIFF-12"), {{"1.8 yp", Y(10), in::metre}, {"P", P(10), in::kn_per_metre}});
}

}  // namespace

void PYStiffClay(common& cmn, int NZ, const vector1<double>& ZTAB, const vector1<double>& SUTAB, double GAM,
                 double DIAM, int ICYCL, double ZZ, double ZSCR, int ITRACE, vector1<double>& P,
                 vector1<double>& Y, int& IERR) {
  const double H = ZZ - ZSCR;
  if (ITRACE != 0)
    remark(
        cmn,
        "(/,' SR/PYStiffClay TRACE PRINT',/,'   NZ  ICYCL   GAM       ','diam        ZZ        ZSCR        H',/,2i5,1x,1p,5e11.3)",
        NZ, ICYCL, GAM, DIAM, ZZ, ZSCR, H);
  IERR = 0;
  P.allocate(11);
  Y.allocate(11);
  for (int i = 1; i <= 11; ++i) Y(i) = (i - 1) * DIAM * 0.005;
  Y(11) = DIAM * 1000.0;
  if (ZSCR > ZZ) return;

  const strength_table table{NZ, ZTAB, SUTAB};
  double SUZZ = 0.0;
  const double SUAVR = mean_strength(table, 5, ZSCR, (ZZ - ZSCR) * 0.25, SUZZ, IERR);
  if (IERR != 0) return;
  const double PC1 = DIAM * GAM * H + 2.0 * SUAVR * DIAM + 2.83 * SUAVR * H;
  const double PC2 = 11.0 * SUZZ * DIAM;
  const double PC = std::min(PC1, PC2);
  const int MODE = PC2 < PC1 ? 2 : 1;
  double deepest = 0.0;
  double SU5D = mean_strength(table, 6, ZSCR, DIAM, deepest, IERR);
  if (IERR != 0) return;
  if (ITRACE != 0)
    remark(cmn, "('   SUAVR      SUZZ       SU5D       PC1        PC2',8x,'PC',/,1p,6e11.3)", SUAVR, SUZZ,
           SU5D, PC1, PC2, PC);
  const double AFACT = factor(A_FACTOR, H / DIAM, IERR);
  if (IERR != 0) return;
  const double STFK = modulus(H, SU5D);
  note(cmn, equation_of("PY-STIFF-3"),
       {{"cm", SUAVR, in::kilopascal}, {"cX", SUZZ, in::kilopascal}, {"c5", SU5D, in::kilopascal}});
  note(cmn, equation_of("PY-STIFF-4"),
       MODE == 2 ? "flow at depth, 11 cX D" : "wedge near the surface, 2 cm D + ...",
       {{"D", DIAM, in::metre},
        {"gam", GAM, in::kn_per_m3},
        {"X", H, in::metre},
        {"2 cm D + gam D X + 2.83 cm X", PC1, in::kn_per_metre},
        {"11 cX D", PC2, in::kn_per_metre},
        {"Pc", PC, in::kn_per_metre}});
  note(cmn, equation_of("PY-STIFF-5"), ICYCL == 0 ? "static" : "cyclic", {{"c5", SU5D, in::kilopascal}});
  // The modulus goes with the mean near the surface, the strain with the strength at depth.
  if (MODE == 2 && SUZZ > SU5D) SU5D = SUZZ;
  const double EPSC = strain(SU5D);
  if (ITRACE != 0) remark(cmn, "('   A-FACT     STFK       EPSC',/,1p,3e11.3)", AFACT, STFK, EPSC);

  note(cmn, equation_of("PY-STIFF-6"), {{"c", SU5D, in::kilopascal}, {"eps50", EPSC}});
  const clay_values clay{PC, AFACT, STFK, EPSC};
  if (ICYCL == 0) return static_curve(cmn, clay, DIAM, P, Y);
  const double BFACT = factor(B_FACTOR, H / DIAM, IERR);
  if (IERR != 0) return;
  cyclic_curve(cmn, clay, BFACT, DIAM, ITRACE, P, Y);
}

}  // namespace tervak
