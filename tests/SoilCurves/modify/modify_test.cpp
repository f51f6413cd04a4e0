#include "SoilCurves/modify/MODIFY.hpp"
#include "SoilCurves/store/curve_family.hpp"
#include "SoilCurves/store/first_live_layer.hpp"
#include "support/small_layer.hpp"

using namespace tervak;

namespace {

/// Layers at the levels 5, 10, ...; in each, curves of `points` points: stress 10 k at displacement 0.1 k.
struct modify_layers : small_layer {
  explicit modify_layers(int points, int layers = 1) : small_layer(layers) {
    for (const curve_family& family : {py_curves(cmn), tz_curves(cmn), qz_curves(cmn)})
      for (layer_number NL(1); NL <= layers; ++NL) {
        family.NPNT(1, NL) = points;
        for (int k = -(points / 2); k <= points / 2; ++k)
          family.STR(15 + k, 1, NL) = 10.0 * k, family.DSP(15 + k, 1, NL) = 0.1 * k;
      }
  }
};

}  // namespace

TEST(FirstLiveLayer, LiesBelowTheLocalScour) {
  small_layer soil(3);
  soil.cmn.ZSEAFL = 1.0;
  for (const auto& [SCRLOC, first] : {std::pair{3.9, 1}, {4.0, 2}, {14.0, 3}}) {
    soil.cmn.SCRLOC = SCRLOC;
    EXPECT_EQ(first_live_layer(soil.cmn), first);
  }
}

// PYFSTR PYFDSP PYGAP PYLIMS PYFEND PYDEND, then p(1) p(2) p(3) y(2) y(3) of seven points. The limit's factor
// is PYFEND, which also acts on the two far points.
TEST(MODIFY, LateralFactorsInTheirOrder) {
  const double rows[][11] = {
      {1, 1, 0, 1e-10, 0.5, 1, 10, 7.5, 7.5, 0.2, 0.3}, {1, 1, 0, 0.0, 0.5, 1, 10, 10, 15, 0.2, 0.3},
      {1, 1, 0, 1.0, 0.5, 2, 10, 10, 15, 0.4, 0.6},     {1, 1, 0.9e-10, 1, 1, 1, 10, 20, 30, 0.2, 0.3},
      {2, 2, 0.5, 1, 0.5, 2, 0, 20, 20, 0.7, 1.8},
  };
  for (const auto& [FSTR, FDSP, GAP, LIMS, FEND, DEND, p1, p2, p3, y2, y3] : rows) {
    modify_layers soil(7);
    soil.cmn.PYMOD(1, 1) = {FSTR, FDSP, GAP, LIMS, FEND, DEND};
    MODIFY(soil.cmn);
    for (const int side : {1, -1}) {
      EXPECT_EQ(side * soil.p(side), p1);
      EXPECT_EQ(side * soil.p(2 * side), p2);
      EXPECT_EQ(side * soil.p(3 * side), p3);
      EXPECT_DOUBLE_EQ(side * soil.y(2 * side), y2);
      EXPECT_DOUBLE_EQ(side * soil.y(3 * side), y3);
    }
  }
}

// On a curve of three points the inner far point of both sides is the origin, which belongs to the lower
// side.
TEST(MODIFY, AxialFactorsBySide) {
  modify_layers soil(3);
  soil.cmn.QZSTR(15, 1, 1) = 1.0;
  soil.cmn.TZMOD(1, 1) = {2.0, 0.5, 4.0, 3.0, 2.0};
  soil.cmn.QZMOD(1, 1) = {1.0, 0.5, 1.0, 3.0, 1.0};
  MODIFY(soil.cmn);
  EXPECT_EQ(soil.cmn.TZSTR(16, 1, 1), 10.0 * 2 * 3);
  EXPECT_EQ(soil.cmn.TZDSP(16, 1, 1), 0.1 * 4 * 2);
  EXPECT_EQ(soil.cmn.TZSTR(14, 1, 1), -10 * 0.5 * 3);
  EXPECT_EQ(soil.cmn.QZSTR(15, 1, 1), 0.5 * 3 * 3);
}

// A gap takes 27 points to the 29 of the store; 27 alone are filled out by one on each side.
TEST(MODIFY, GapAndSequenceFailures) {
  const std::string HEAD = "\r\n **** SR/MODIFY : ", PLACE = "=    1    2   17  ";
  const struct {
    int points;
    double gap, py, tz, qz;  // displacement behind that of point 16
    std::string log;
  } cases[] = {
      {27, 0.5, 0.1, 0.1, 0.1, ""},
      {27, 0, 0.1, 0.1, 0.1, ""},
      {29, 0.5, 0.1, 0.1, 0.1,
       HEAD + "GAP GAVE P-Y MAX POINTS ERROR\r\n NDIA,LAY,NUMPNTS,MAX=    1    2   31   29\r\n"},
      {5, 0, 2e-10, 2e-10, 2e-10, ""},
      {5, 0, 5e-11, 5e-11, 5e-11,
       HEAD + "P-Y DATA SEQUENCE ERROR\r\n NDIA,LAY,N, PYDSP(N),PYDSP(N-1)" + PLACE +
           "0.1000E+00  0.1000E+00\r\n"},
      {5, 0, 2e-10, -0.01, 5e-11,
       HEAD + "T-Z DATA SEQUENCE ERROR\r\n NDIA,LAY,N,TZDSP(N),TZDSP(N-1)" + PLACE +
           "0.9000E-01  0.1000E+00\r\n"},
      {5, 0, 2e-10, 2e-10, -0.01,
       HEAD + "Q-Z DATA SEQUENCE ERROR\r\n NDIA,LAY,N,QZDSP(N),QZDSP(N-1)" + PLACE +
           "0.9000E-01  0.1000E+00\r\n"},
  };
  for (const auto& c : cases) {
    modify_layers soil(c.points, 2);
    soil.cmn.PYMOD(1, 2)[2] = c.gap;
    soil.cmn.PYDSP(17, 1, 2) = 0.1 + c.py, soil.cmn.TZDSP(17, 1, 2) = 0.1 + c.tz;
    soil.cmn.QZDSP(17, 1, 2) = 0.1 + c.qz;
    MODIFY(soil.cmn);
    EXPECT_EQ(soil.log(), c.log);
    EXPECT_EQ(soil.cmn.IERR, c.log.empty() ? 0 : 1);
    if (c.points != 27) continue;
    EXPECT_EQ(soil.p(14, 2), 130.0);
    EXPECT_EQ(soil.y(-14, 2), 0.1 * -13 - (c.gap > 0 ? c.gap : 1.0));
  }
}
