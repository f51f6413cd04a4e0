#include "Control/state/sp.hpp"
#include "IO/input/input_profile.hpp"

namespace {

using tervak::sp;

auto& soil(P p, std::size_t t) { return p.data.SoilTypes.Records.at(t - 1); }
auto& row(P p, std::size_t r) { return p.data.TzQzTable.at(r - 1); }

TEST(READG2, TakesFortyFiveLoadsAndLooksAtNothingBehindTheLastLayer) {
  Tervak p = valid_profile(4);
  p.data.PointLoads.assign(45, 1.0), p.data.PointLoadDistances.assign(45, 2.0);
  p.data.Layers.push_back({});
  expect_log(p, "");
  p.data.PointLoads.push_back(1.0);
  expect_log(p, refused("READG2 : NUMFRC ERROR  NUMFRC,MAX=   46   45"));
}

TEST(READG2, ReplacesZeros) {
  input_run run;
  Tervak p = valid_profile(4);
  for (std::size_t t : {1U, 2U}) soil(p, t).Eps50 = soil(p, t).ApiJ = soil(p, t).ResidualRatio = 0.0;
  row(p, 1).TzDisplacementRatio = row(p, 1).QzDisplacementRatio = 0.0;
  run.read(p);
  const auto& c = run.cmn;  // API J of a sand stays, as does a ratio that is given
  EXPECT_EQ((std::array{c.EPS50(1), c.APIJ(1), c.APIJ(2), c.TRESMX(1), c.TZDRAT(1), c.QZDRAT(1), c.QZDRAT(2),
                        c.G0SOIL(2)}),
            (std::array{sp(0.01f), 0.25, 0.0, 1.0, sp(0.01f), sp(0.05f), 0.1, -1.0}));
}

TEST(READG2, LevelsRunOnByAddition) {
  input_run run;
  Tervak p = valid_profile(4);
  p.data.NumberOfLayers = 12;
  p.data.Layers = {{1, 10, 1, 1.0, 284, 293, 293}, {11, 12, 2, 2.0, 287, 588, 200}};
  run.read(p);
  const double Z = 0.99999999999999989;  // ten times 0.1, added up
  EXPECT_EQ(run.cmn.ZBOTM(10), Z);
  EXPECT_EQ(run.cmn.ZBOTM(11), Z + (2.0 - Z) / 2);
}

// Two clays in a run length unit of 0.1 m and a force unit that leaves stresses as they are. The line of Su
// in the second starts at the bottom of calculation layer 1 (Z 10), not of main layer 1 (Z 30).
TEST(READG2, MapsMainLayers) {
  input_run run;
  Tervak p = valid_profile(5);
  p.data.UnitM = 10.0;
  p.data.UnitF = 100.0;
  p.data.MainLayers.Records[1] = {2, 5.0, 20.0, 0.0, 0.0, 0.0, 0.0, 60.0, 90.0, 0, 0.03, 0.25, 0.0};
  p.data.Subdivision.Records[1].PyCode = 284;
  run.read(p);
  ASSERT_EQ(run.log(), "");
  const auto& c = run.cmn;
  expect_values({c.SU0(1), c.SU100(1), c.SU0(2), c.SU100(2), c.TRESMX(1), c.EPS50(2), c.ZONINF},
                {20.0, 120.0, 52.5, 127.5, 0.9, 0.03, 10.0});
  const double INSIDE = 10.0 * sp(0.001f);  // the first row alone is not scaled
  expect_values({c.ZTQZ(1), c.ZTQZ(2), c.ZTQZ(3), c.ZTQZ(4), c.ZTQZ(5)},
                {-sp(0.001f), INSIDE, 30 - INSIDE, 30 + INSIDE, 50 - INSIDE});
  expect_values({c.TCMP(2), c.TCMP(3), c.TTNS(2), c.TTNS(3), c.SIGTIP(2), c.SIGTIP(3)},
                {11, 12, 13, 14, 15, 16});
}

TEST(READG2, AMainLayerAboveTheSeaFloorStopsTheRun) {
  Tervak p = valid_profile(5);
  p.zSeafloor = 3.5;
  EXPECT_EQ(stop_of([&] { expect_log(p, ""); }),
            "STOP at IO\\readg2(181):  **** SR/READG2 : Impossible error 120");
}

}  // namespace
