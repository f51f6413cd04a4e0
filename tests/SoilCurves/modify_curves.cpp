#include "SoilCurves/MODIFY.hpp"
#include "support/axial_curve.hpp"
#include "support/small_layer.hpp"

using namespace tervak;

namespace {

/// Layers at the levels 5, 10, ...; in each, curves of `points` points: stress 10 k at displacement 0.1 k.
struct modify_layers : small_layer {
  explicit modify_layers(int points, int layers = 1) : small_layer(layers) {
    for (const curve_family& family : {py_curves(cmn), tz_curves(cmn), qz_curves(cmn)})
      for (int NL = 1; NL <= layers; ++NL) {
        family.NPNT(1, NL) = points;
        for (int k = -(points / 2); k <= points / 2; ++k)
          family.STR(15 + k, 1, NL) = 10.0 * k, family.DSP(15 + k, 1, NL) = 0.1 * k;
      }
  }
};

/// A side of 14 points: the given ones, then the last stress in steps of 1.0.
rows filled(rows side) {
  while (side.size() < 14) side.push_back({side.back().stress, side.back().displacement + 1.0});
  return side;
}

}  // namespace

TEST(MODIFY, DeadLayersLoseTheirStressAndKeepTheirDisplacements) {
  const std::pair<double, int> cases[] = {{3.9, 1}, {4.0, 2}, {9.0, 3}, {14.0, 3}};
  for (const auto& [SCRLOC, first_live] : cases) {
    modify_layers soil(5, 3);
    soil.cmn.SCRLOC = SCRLOC, soil.cmn.ZSEAFL = 1.0;
    for (int NL = 1; NL <= 3; ++NL) soil.cmn.PYMOD(1, NL)[1] = 2.0;
    MODIFY(soil.cmn);
    for (int NL = 1; NL <= 3; ++NL) {
      EXPECT_EQ(soil.y(2, NL), NL >= first_live ? 0.4 : 0.2) << SCRLOC;
      for (const curve_table* stress : {&soil.cmn.PYSTR, &soil.cmn.TZSTR, &soil.cmn.QZSTR})
        EXPECT_EQ((*stress)(29, 1, NL), NL >= first_live ? 20.0 : 0.0) << SCRLOC;
    }
  }
}

// PYFSTR PYFDSP PYGAP PYLIMS PYFEND PYDEND. The limit's factor is PYFEND, which also acts on the two far
// points.
TEST(MODIFY, LateralFactorsInTheirOrder) {
  const double Y3 = 0.1 * 3;
  const rows GAP = {{0, 0.5}, {20, 0.2 + 0.5}, {20, 2 * (0.4 + 0.5)}, {30, 2 * (2 * Y3 + 0.5)}};
  const struct {
    std::array<double, 6> factors;
    rows side;
  } cases[] = {
      {{2, 4, 0, 1, 1, 1}, {{20, 0.4}, {40, 0.8}, {60, 4 * Y3}}},
      {{1, 1, 0, 0.5, 0.5, 1}, {{10, 0.1}, {7.5, 0.2}, {7.5, Y3}}},
      {{1, 1, 0, 1e-10, 0.5, 1}, {{10, 0.1}, {7.5, 0.2}, {7.5, Y3}}},
      {{1, 1, 0, 0.0, 0.5, 1}, {{10, 0.1}, {10, 0.2}, {15, Y3}}},
      {{1, 1, 0, 1.0, 0.5, 2}, {{10, 0.1}, {10, 0.4}, {15, 2 * Y3}}},
      {{1, 1, 0.9e-10, 1, 1, 1}, {{10, 0.1}, {20, 0.2}, {30, Y3}}},
      {{2, 2, 0.5, 1, 0.5, 2}, GAP},
  };
  for (const auto& [factors, side] : cases) {
    modify_layers soil(7);
    soil.cmn.PYMOD(1, 1) = factors;
    MODIFY(soil.cmn);
    expect_side(py_curves(soil.cmn), 1, filled(side));
    rows lower = filled(side);
    if (factors[2] == 0.5) lower.front().stress = -0.0;  // the gap sets its zeros, it does not mirror them
    expect_side(py_curves(soil.cmn), -1, lower);
  }
}

TEST(MODIFY, AxialFactorsBySide) {
  modify_layers soil(5);
  soil.cmn.TZMOD(1, 1) = {2.0, 0.5, 4.0, 3.0, 2.0};
  MODIFY(soil.cmn);
  expect_side(tz_curves(soil.cmn), 1, filled({{60, 0.8}, {120, 1.6}}));
  expect_side(tz_curves(soil.cmn), -1, filled({{15, 0.8}, {30, 1.6}}));
  expect_side(qz_curves(soil.cmn), 1, filled({{10, 0.1}, {20, 0.2}}));
  expect_side(qz_curves(soil.cmn), -1, filled({{0, 0.1}, {0, 0.2}}));  // a tip takes no tension by default

  // On a curve of three points the inner far point of both sides is the origin, which belongs to the lower
  // side.
  modify_layers three(3);
  three.cmn.QZSTR(15, 1, 1) = 1.0;
  three.cmn.QZMOD(1, 1) = {1.0, 0.5, 1.0, 3.0, 1.0};
  MODIFY(three.cmn);
  EXPECT_EQ(three.cmn.QZSTR(15, 1, 1), 0.5 * 3 * 3);
  EXPECT_EQ(three.cmn.QZSTR(16, 1, 1), 30.0);
}

TEST(MODIFY, GapAndSequenceFailures) {
  const std::string GAP =
      "\r\n **** SR/MODIFY : GAP GAVE P-Y MAX POINTS ERROR\r\n NDIA,LAY,NUMPNTS,MAX=    1    2";
  const auto sequence = [](const std::string& family, const std::string& names) {
    return "\r\n **** SR/MODIFY : " + family + " DATA SEQUENCE ERROR\r\n NDIA,LAY,N," + names +
           "=    1    2   17  0.1000E+00  0.1000E+00\r\n";
  };
  const struct {
    int points;
    double gap, py, tz, qz;  // displacement behind that of point 16
    std::string log;
  } cases[] = {
      {27, 0.5, 0.1, 0.1, 0.1, ""},
      {29, 0.5, 0.1, 0.1, 0.1, GAP + "   31   29\r\n"},
      {5, 0, 2e-10, 2e-10, 2e-10, ""},
      {5, 0, 5e-11, 5e-11, 5e-11, sequence("P-Y", " PYDSP(N),PYDSP(N-1)")},
      {5, 0, 2e-10, 5e-11, 5e-11, sequence("T-Z", "TZDSP(N),TZDSP(N-1)")},
      {5, 0, 2e-10, 2e-10, 5e-11, sequence("Q-Z", "QZDSP(N),QZDSP(N-1)")},
  };
  for (const auto& c : cases) {
    modify_layers soil(c.points, 2);
    soil.cmn.PYMOD(1, 2)[2] = c.gap;
    soil.cmn.PYDSP(17, 1, 2) = 0.1 + c.py, soil.cmn.TZDSP(17, 1, 2) = 0.1 + c.tz,
                          soil.cmn.QZDSP(17, 1, 2) = 0.1 + c.qz;
    MODIFY(soil.cmn);
    EXPECT_EQ(soil.log(), c.log);
    EXPECT_EQ(soil.cmn.IERR, c.log.empty() ? 0 : 1);
    if (c.points != 27) continue;
    EXPECT_EQ(soil.p(14, 2), 130.0);
    EXPECT_EQ(soil.y(-14, 2), 0.1 * -13 - 0.5);
  }
}
