// Ultimate lateral resistances: APILAT, VRKLAT, PYULT. The published coefficients of sand stand on the
// validation page.
#include "SoilCurves/py/py_support.hpp"
#include "SoilCurves/py/PYULT.hpp"
#include "SoilCurves/py/VRKLAT.hpp"

using namespace tervak;

namespace {

// IYEAR, ICYCL, SU, PHI, DEPTH, SIGZ, GAM, DIAM, resistance in kN/m, code: a code leaves 0, the highest
// stands. Left: Matlock 1970; sand of 30 degrees whose strength is below the tolerance, (1.911705 H / D
// + 2.666667) SIGZ; the tolerances themselves.
TEST(APILAT, ValuesAndCodes) {
  const double low = 0.9e-6;
  const double rows[][10] = {
      {1984, 0, 25, 30, 1, 0, 8, 0.6, 62.3, 0},      {1984, 0, low, low, 1, 0, 0, 1, 0, 1},
      {1987, 0, low, 30, 3, 10, 0, 1, 84.01782, 0},  {1984, 0, 1, 0, low, 0, 0, 1, 0, 2},
      {1, 1, 1e-5, 0, 1, -low, -low, 1, 3.41e-5, 0}, {1984, 0, 1, 0, 1, -1, 0, 1, 0, 3},
      {1984, 2, 1, 0, 1, -1, 0, low, 0, 5},          {1984, 0, 1, 0, 1, -1, 0, low, 0, 4},
      {1984, 2, 0, 0, 0, -1, -1, 0, 0, 6},           {0, 2, 0, 0, 0, -1, -1, 0, 0, 7},
  };
  for (const auto& [IYEAR, ICYCL, SU, PHI, DEPTH, SIGZ, GAM, DIAM, force, code] : rows) {
    double PULT = -1;
    int IERR = -1;
    APILAT(static_cast<int>(IYEAR), SU, 0.5, PHI, DEPTH, SIGZ, GAM, DIAM, static_cast<int>(ICYCL), PULT,
           IERR);
    EXPECT_EQ(IERR, code);
    expect_rel(PULT * DIAM, force, SU < 1e-6 ? 3e-6 : 1e-9);
  }
}

// PHI, SU, DEPTH, SIGZ, DIAM, GAM, ICYCL, OCR, resistance, code. Left: 30 degrees has the passive coefficient
// 3, and the short pi costs 2E-6; clay by its strength ratio 4 SU / SIGZ; the sand form. Other values stand
// with the curves.
TEST(VRKLAT, ValuesAndCodes) {
  const double rows[][10] = {
      {30, 0, 5, 50, 1, 10, 1, 0, 3.0 * 3 * 50, 0}, {0, 0, 5, 50, 1, 10, 0, 0, 0, 1},
      {30, 0, 5, 50, 5, 10, 1, 0, 1.5 * 3 * 50, 0}, {30, 0, 0, 50, 1, 10, 0, 0, 0, 2},
      {0, 20, 5, 50, 1, 10, 0, 0, 20 * 8.0, 0},     {30, 0, 5, 0, 1, 10, 0, 0, 0, 3},
      {0, 10, 5, 50, 1, 10, 0, 0, 10 * 4.5, 0},     {30, 0, 5, 50, 0, 10, 0, 0, 0, 4},
      {1e-11, 0, 5, 50, 1, 10, 0, 1, 4.0 * 50, 0},  {30, 0, 0, 0, 0, 0, 0, 0, 0, 6},
  };
  for (const auto& [PHI, SU, DEPTH, SIGZ, DIAM, GAM, ICYCL, OCR, expected, code] : rows) {
    double PULT = -1;
    int IERR = -1;
    VRKLAT(PHI, SU, DEPTH, SIGZ, DIAM, GAM, static_cast<int>(ICYCL), OCR, PULT, IERR);
    EXPECT_EQ(IERR, code);
    expect_rel(PULT, expected, 3e-6);
  }
}

// PHI, SU, DEPTH, SIGZ, expected, tolerance. Brinch Hansen 1961: Nc 5.14 and 30.14, depth factor 1.58 + 4.09
// tan(phi)^4; the rest worked independently.
TEST(PYULT, SurfaceAndDepth) {
  const double rows[][6] = {
      {0, 1, 0, 0, 2.5707963268, 1e-9}, {0, 1, 1e9, 0, 5.14 * 1.58, 4e-4},
      {0, 1, 5, 0, 6.8243751261, 1e-7}, {30, 1, 1e9, 0, 30.14 * 2.034444, 1e-4},
      {30, 1, 0, 0, 6.9735869, 1e-7},   {30, 1, 5, 0, 35.578066, 1e-6},
      {30, 0, 0, 1, 4.7530558, 1e-7},   {0, 0, 5, 1, 0, 1},
      {30, 0, 5, 1, 9.2374287, 1e-6},
  };
  for (const auto& [PHI, SU, DEPTH, SIGZ, expected, tolerance] : rows) {
    double PULT = -1;
    PYULT(PHI / 180 * 3.14159265358979, SU, DEPTH, SIGZ, 1.0, PULT);
    EXPECT_NEAR(PULT, expected, std::abs(expected) * tolerance + 1e-12) << PHI << ' ' << DEPTH;
  }
}

}  // namespace
