// Ultimate lateral resistances: APILAT, VRKLAT, PYULT.
#include "SoilCurves/py_support.hpp"
#include "SoilCurves/PYULT.hpp"
#include "SoilCurves/VRKLAT.hpp"

using namespace tervak;

namespace {

// Clay in kN/m: Matlock 1970, wedge and flow; API RP 2A, 9 Su D. A code leaves 0, the highest code stands.
TEST(APILAT, clay_and_codes) {
  const double low = 0.9e-6;
  const struct {
    int IYEAR, ICYCL;
    double SU, PHI, DEPTH, SIGZ, GAM, DIAM, force;
    int code;
  } rows[] = {
      {1984, 0, 25, 30, 1, 0, 8, 0.6, 62.3, 0},
      {1987, 1, 25, 30, 50, 0, 8, 0.6, 135, 0},
      {2014, 0, 30, 30, 50, 0, 8, 0.812, 219.24, 0},
      {1, 1, 1e-5, 0, 1, -low, -low, 1, 3.41e-5, 0},
      {1984, 0, low, low, 1, 0, 0, 1, 0, 1},
      {1984, 0, 1, 0, low, 0, 0, 1, 0, 2},
      {1984, 0, 1, 0, 1, -1, 0, 1, 0, 3},
      {1984, 0, 1, 0, 1, 0, 0, low, 0, 4},
      {1984, 2, 1, 0, 1, 0, 0, 1, 0, 5},
      {1984, 0, 0, 0, 0, -1, -1, 0, 0, 6},
      {0, 0, 1, 0, 1, 0, 0, 1, 0, 7},
  };
  for (const auto& r : rows) {
    double PULT = -1;
    int IERR = -1;
    APILAT(r.IYEAR, r.SU, 0.5, r.PHI, r.DEPTH, r.SIGZ, r.GAM, r.DIAM, r.ICYCL, PULT, IERR);
    EXPECT_EQ(IERR, r.code);
    expect_rel(PULT * r.DIAM, r.force, 1e-9);
  }
}

// Chart of API RP 2A, 6.8.6 in closed form: near the surface (C1 H / D + C2) SIGZ, at depth C3 SIGZ.
TEST(APILAT, sand_coefficients) {
  const double rows[][4] = {{20, 0.756153, 1.549316, 8.600110},
                            {25, 1.218079, 2.058054, 15.684583},
                            {30, 1.911705, 2.666667, 28.745128},
                            {35, 2.970448, 3.419182, 53.793453},
                            {40, 4.623957, 4.381467, 104.148150}};
  for (const auto& [PHI, C1, C2, C3] : rows) {
    const std::pair<double, double> depths[] = {{1e-5, C2}, {1, C1 + C2}, {3, 3 * C1 + C2}, {1e3, C3}};
    for (const auto& [DEPTH, factor] : depths) {
      double PULT = 0;
      int IERR = -1;
      APILAT(1987, 0.9e-6, 0, PHI, DEPTH, 10, 0, 1, 0, PULT, IERR);  // a strength below the tolerance
      expect_rel(PULT / 10, factor, 3e-5);
    }
  }
}

// 30 degrees has the passive coefficient 3; the short pi costs 2E-6. Clay values stand with the curves.
TEST(VRKLAT, values_and_codes) {
  const struct {
    double PHI, SU, DEPTH, SIGZ, DIAM, GAM;
    int ICYCL;
    double OCR, PULT;
    int code;
  } rows[] = {
      {30, 0, 5, 50, 1, 10, 1, 0, 3.0 * 3 * 50, 0},
      {30, 0, 5, 50, 5, 10, 1, 0, 1.5 * 3 * 50, 0},
      {0, 20, 5, 50, 1, 10, 0, 0.0, 20 * 8.0, 0},     // 4 * 20 / 50
      {0, 10, 5, 50, 1, 10, 0, 0.0, 10 * 4.5, 0},     // 4 * 10 / 50
      {1e-11, 0, 5, 50, 1, 10, 0, 1.0, 4.0 * 50, 0},  // the sand form
      {0, 0, 5, 50, 1, 10, 0, 0, 0, 1},
      {30, 0, 0, 50, 1, 10, 0, 0, 0, 2},
      {30, 0, 5, 0, 1, 10, 0, 0, 0, 3},
      {30, 0, 5, 50, 0, 10, 0, 0, 0, 4},
      {30, 0, 0, 0, 0, 0, 0, 0, 0, 6},
  };
  for (const auto& r : rows) {
    double PULT = -1;
    int IERR = -1;
    VRKLAT(r.PHI, r.SU, r.DEPTH, r.SIGZ, r.DIAM, r.GAM, r.ICYCL, r.OCR, PULT, IERR);
    EXPECT_EQ(IERR, r.code);
    expect_rel(PULT, r.PULT, 3e-6);
  }
}

// Brinch Hansen 1961: Nc 5.14 and 30.14, depth factor 1.58 + 4.09 tan(phi)^4; the rest worked independently.
TEST(PYULT, surface_and_depth) {
  const double rows[][6] = {// PHI, SU, DEPTH, SIGZ, expected, tolerance
                            {0, 1, 0, 0, 2.5707963268, 1e-9},
                            {0, 1, 5, 0, 6.8243751261, 1e-7},
                            {0, 1, 1e9, 0, 5.14 * 1.58, 4e-4},
                            {30, 1, 0, 0, 6.9735869, 1e-7},
                            {30, 0, 0, 1, 4.7530558, 1e-7},
                            {30, 1, 1e9, 0, 30.14 * 2.034444, 1e-4},
                            {30, 1, 5, 0, 35.578066, 1e-6},
                            {30, 0, 5, 1, 9.2374287, 1e-6},
                            {0, 0, 5, 1, 0, 1}};
  for (const auto& [PHI, SU, DEPTH, SIGZ, expected, tolerance] : rows) {
    double PULT = -1;
    PYULT(PHI / 180 * 3.14159265358979, SU, DEPTH, SIGZ, 1.0, PULT);
    EXPECT_NEAR(PULT, expected, std::abs(expected) * tolerance + 1e-12) << PHI << ' ' << DEPTH;
  }
}

}  // namespace
