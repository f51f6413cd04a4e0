#include <algorithm>

#include "SoilCurves/axial/QZMAN.hpp"
#include "SoilCurves/axial/TZMAN.hpp"
#include "SoilCurves/store/curve_side.hpp"
#include "support/small_layer.hpp"

using namespace tervak;

namespace {

curve_side ramp(int from, int to) {
  curve_side given;
  for (int k = from; k <= to; ++k) given.push_back({8.0 * k, 1.0 * k});
  return given;
}

}  // namespace

// Given points; points of a side, and its last one behind the safety factor 2, in compression and in tension,
// both positive. Padded points repeat the stress in steps of the diameter 2.
TEST(ManualAxialCurves, LaidAroundTheOrigin) {
  const std::string ORIGIN = " : GIVEN MANUAL ?-Z CURVE DOES NOT PASS ORIGIN\r\n LAYER,NDIAM =    1    1\r\n";
  const std::string ROOM =
      "  MAXIMUM NUMBER OF CURVE POINTS ON ONE SIDE OF ORIGIN EXCEEDED ,MAX,LEFT,RIGHT=   14";
  const struct {
    curve_side given;
    int N;
    curve_point compression, tension;
    std::string finding;
  } cases[] = {
      // one side; the lower side padded; the upper side padded; the lower side alone
      {{{0, 0}, {10, .1}, {16, .2}}, 2, {8, .2}, {8, .2}, ""},
      {{{-6, -.3}, {1e-11, -1e-11}, {10, .1}, {16, .2}, {12, .4}}, 3, {6, .4}, {3, .3 + 2 + 2}, ""},
      {{{-8, -.4}, {-6, -.3}, {0, 0}, {10, .1}}, 2, {5, .1 + 2}, {4, .4}, ""},
      {{{-6, -.3}, {0, 0}}, 1, {0, 2}, {3, .3}, ""},
      // 14 points have room on a side, 15 have not
      {ramp(-14, 14), 14, {56, 14}, {56, 14}, ""},
      {ramp(0, 14), 14, {56, 14}, {56, 14}, ""},
      {ramp(-15, 1), 0, {}, {}, ROOM + "   15    1\r\n"},
      {ramp(-1, 15), 0, {}, {}, ROOM + "    1   15\r\n"},
      {ramp(0, 15), 0, {}, {}, ROOM + "    0   15\r\n"},
      // no points; stress at zero; no stress off zero
      {{}, 0, {}, {}, ORIGIN},
      {{{-6, -.3}, {2e-10, 0}, {10, .1}}, 0, {}, {}, ORIGIN},
      {{{-6, -.3}, {0, 2e-10}, {10, .1}}, 0, {}, {}, ORIGIN},
  };
  for (const auto& c : cases)
    for (const char axis : {'T', 'Q'}) {
      SCOPED_TRACE(testing::Message() << "case " << &c - cases << ", " << axis << "-Z");
      small_layer soil(1, {2.0});
      const curve_family family = axis == 'T' ? tz_curves(soil.cmn) : qz_curves(soil.cmn);
      (axis == 'T' ? soil.cmn.SFSKF : soil.cmn.SFSIGT) = 2.0;
      for (const curve_point& point : c.given) {
        const int k = ++family.NPNT(1, 1);
        family.STR(k, 1, 1) = point.stress, family.DSP(k, 1, 1) = point.displacement;
      }
      (axis == 'T' ? TZMAN : QZMAN)(soil.cmn, 1, 1);
      std::string log = c.finding.empty() ? "" : "\r\n **** SR/?ZMAN" + c.finding;
      std::replace(log.begin(), log.end(), '?', axis);
      EXPECT_EQ(soil.log(), log);
      EXPECT_EQ(soil.cmn.IERR, log.empty() ? 0 : 1);
      if (!log.empty()) continue;
      EXPECT_EQ(family.NPNT(1, 1), 2 * c.N + 1);
      EXPECT_EQ(family.STR(15 + c.N, 1, 1), c.compression.stress);
      EXPECT_EQ(family.DSP(15 + c.N, 1, 1), c.compression.displacement);
      EXPECT_EQ(family.STR(15 - c.N, 1, 1), -c.tension.stress);
      EXPECT_EQ(family.DSP(15 - c.N, 1, 1), -c.tension.displacement);
    }
}
