#include "SoilCurves/QZMAN.hpp"
#include "SoilCurves/TZMAN.hpp"
#include "support/axial_curve.hpp"
#include "support/small_layer.hpp"

using namespace tervak;

namespace {

rows ramp(int from, int to, double slope = 8.0) {
  rows given;
  for (int k = from; k <= to; ++k) given.push_back({slope * k, 1.0 * k});
  return given;
}

}  // namespace

// Given points, and the sides behind the safety factor 2. Padded points repeat the stress in steps of the
// diameter 2.
TEST(ManualAxialCurves, LaidAroundTheOrigin) {
  const std::string ORIGIN = " : GIVEN MANUAL ?-Z CURVE DOES NOT PASS ORIGIN\r\n LAYER,NDIAM =    1    1\r\n";
  const std::string ROOM =
      "  MAXIMUM NUMBER OF CURVE POINTS ON ONE SIDE OF ORIGIN EXCEEDED ,MAX,LEFT,RIGHT=   14";
  const struct {
    const char* name;
    rows given, compression, tension;
    std::string finding;
  } cases[] = {
      {"one side", {{0, 0}, {10, 0.1}, {16, 0.2}}, {{5, 0.1}, {8, 0.2}}, {{5, 0.1}, {8, 0.2}}, ""},
      {"both sides", {{-6, -0.3}, {0, 0}, {10, 0.1}}, {{5, 0.1}}, {{3, 0.3}}, ""},
      {"lower side padded",
       {{-6, -0.3}, {1e-11, -1e-11}, {10, 0.1}, {16, 0.2}, {12, 0.4}},
       {{5, 0.1}, {8, 0.2}, {6, 0.4}},
       {{3, 0.3}, {3, 0.3 + 2}, {3, 0.3 + 2 + 2}},
       ""},
      {"upper side padded",
       {{-8, -0.4}, {-6, -0.3}, {0, 0}, {10, 0.1}},
       {{5, 0.1}, {5, 0.1 + 2}},
       {{3, 0.3}, {4, 0.4}},
       ""},
      {"lower side only", {{-6, -0.3}, {0, 0}}, {{0, 2}}, {{3, 0.3}}, ""},
      {"29 points", ramp(-14, 14), ramp(1, 14, 4.0), ramp(1, 14, 4.0), ""},
      {"15 on one side", ramp(0, 14), ramp(1, 14, 4.0), ramp(1, 14, 4.0), ""},
      {"15 below", ramp(-15, 1), {}, {}, ROOM + "   15    1\r\n"},
      {"15 above", ramp(-1, 15), {}, {}, ROOM + "    1   15\r\n"},
      {"16 on one side", ramp(0, 15), {}, {}, ROOM + "    0   15\r\n"},
      {"no points", {}, {}, {}, ORIGIN},
      {"stress at zero", {{-6, -0.3}, {2e-10, 0}, {10, 0.1}}, {}, {}, ORIGIN},
      {"no stress off zero", {{-6, -0.3}, {0, 2e-10}, {10, 0.1}}, {}, {}, ORIGIN},
  };
  for (const auto& c : cases)
    for (const char axis : {'T', 'Q'}) {
      SCOPED_TRACE(testing::Message() << c.name << ", " << axis << "-Z");
      small_layer soil(1, {2.0});
      const curve_family family = axis == 'T' ? tz_curves(soil.cmn) : qz_curves(soil.cmn);
      (axis == 'T' ? soil.cmn.SFSKF : soil.cmn.SFSIGT) = 2.0;
      for (const curve_point& point : c.given) {
        const int k = ++family.NPNT(1, 1);
        family.STR(k, 1, 1) = point.stress, family.DSP(k, 1, 1) = point.displacement;
      }
      (axis == 'T' ? TZMAN : QZMAN)(soil.cmn, 1, 1);
      std::string log = c.finding.empty() ? "" : "\r\n **** SR/?ZMAN" + c.finding;
      for (char& letter : log) letter = letter == '?' ? axis : letter;
      EXPECT_EQ(soil.log(), log);
      EXPECT_EQ(soil.cmn.IERR, log.empty() ? 0 : 1);
      if (log.empty()) expect_side(family, 1, c.compression);
      if (log.empty()) expect_side(family, -1, c.tension);
    }
}
