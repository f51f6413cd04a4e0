#include "Control/state/sp.hpp"
#include "IO/input/input_profile.hpp"

namespace {

using tervak::sp;

auto& soil(P p, std::size_t t) { return p.data.SoilTypes.Records.at(t - 1); }
auto& row(P p, std::size_t r) { return p.data.TzQzTable.at(r - 1); }
auto& layer(P p, std::size_t i) { return p.data.Layers.at(i - 1); }

TEST(READG2, Limits) {
  // clang-format off
  const std::vector<limit_row> rows{
      {[](P p, double x) { p.widthOfEmbankmentSlopingPart = x; }, {-1}, {0}, "AEMB ERROR%10.3f"},
      {[](P p, double x) { p.radiusOfCircularLoadedArea = x; }, {-1}, {0}, "RADIUS CIRCULAR LOAD ERROR%10.3f"},
      {[](P p, double x) { soil(p, 2).Number = int(x); }, {1, 3}, {2}, "SOIL TYPE SEQUENCE ERROR    2%5.0f"},
      {[](P p, double x) { soil(p, 2).FrictionAngle = x; }, {-0.1, 89.1}, {0, 89}, "TYP,PHI-ANGLE=    2%10.3f"},
      {[](P p, double x) { soil(p, 2).Eps50 = x; }, {-0.1, 0.501}, {0, 0.5}, "TYP,EPS50=    2%10.3f"},
      {[](P p, double x) { soil(p, 1).Ocr = x; }, {-0.1, 100.1}, {0, 100}, "TYP,OCR=    1%10.3f"},
      {[](P p, double x) { soil(p, 1).ApiJ = x; }, {-0.1, 1.001}, {0, 1}, "TYP,APIJ=    1%10.3f"},
      {[](P p, double x) { soil(p, 2).Ocr = x; }, {}, {-1, 150}, "a sand"},
      {[](P p, double x) { soil(p, 2).ApiJ = x; }, {}, {-1, 2}, "a sand"},
      {[](P p, double x) { soil(p, 2).OpenCrack = int(x); }, {-1, 2}, {0, 1}, "TYP,OPEN=    2%5.0f"},
      {[](P p, double x) { soil(p, 2).ResidualRatio = x; }, {-0.1, 1.011}, {0, 1.005}, "TYP,TRES/TMAX=    2%10.3f"},
      {[](P p, double x) { soil(p, 2).ResidualDisplacement = x; }, {-1}, {0}, "TYP,TZZRES="},
      {[](P p, double x) { p.data.ZonInf = x; }, {1.009}, {1.011}, "ZONINF ERROR%10.3f"},
      {[](P p, double x) { p.data.RfTz = x; }, {-0.1, 1.001}, {0, 1}, "RFTZ ERROR%10.3f"},
      {[](P p, double x) { row(p, 2).Z = x; }, {-1, 0}, {0.001}, "TZ/QZ SEQUENCE ERROR  2    0.00%8.2f"},
      {[](P p, double x) { row(p, 2).ShearModulus = x; }, {-100.5}, {-100, -50}, "TYP,G0SOIL=    2%10.3f"},
      {[](P p, double x) { row(p, 2).TzDisplacementRatio = x; }, {-0.1, 0.501}, {0, 0.5}, "TYP,TZ/D-RATIO=    2%10.3f"},
      {[](P p, double x) { row(p, 2).TipStress = x; }, {-1}, {0}, "TYP,SIGTIP=    2%10.3f"},
      {[](P p, double x) { row(p, 2).PoissonRatio = x; }, {-0.1, 0.501}, {0, 0.5}, "TYP,POIS=    2%10.3f"},
      {[](P p, double x) { row(p, 2).QzDisplacementRatio = x; }, {-0.1, 0.501}, {0, 0.5}, "TYP,QZ/D-RATIO=    2%10.3f"},
      {[](P p, double x) { layer(p, 2).BottomZ = x; }, {2, 3}, {3.001}, "LAYER Z-SEQUENCE ERROR    2     3.000%10.3f"},
      {[](P p, double x) { layer(p, 2).FirstLayer = int(x); }, {3, 5}, {4}, "LAYER NUMBERING  NOW,L1,L2,MAX=    2%5.0f    4  500"},
      {[](P p, double x) { layer(p, 2).LastLayer = int(x); }, {3, 5}, {4}, "LAYER NUMBERING  NOW,L1,L2,MAX=    2    4%5.0f  500"},
      {[](P p, double x) { layer(p, 2).SoilType = int(x); }, {0, 3}, {1, 2}, "SOIL TYPE ERROR  NOW,TYPE,NUMTYP=    2%5.0f    2"},
      {[](P p, double x) { layer(p, 1).PyCode = int(x); }, {1, 293, 600}, {103, 588}, "PY/TZ/QZ CODE ERROR  NOW,CODES=    1%5.0f  293  293"},
      {[](P p, double x) { layer(p, 1).TzCode = int(x); }, {1, 287}, {200, 588}, "PY/TZ/QZ CODE ERROR  NOW,CODES=    1  284%5.0f  293"},
      {[](P p, double x) { layer(p, 1).QzCode = int(x); }, {1, 588}, {100, 214}, "PY/TZ/QZ CODE ERROR  NOW,CODES=    1  284  293%5.0f"},
  };
  // clang-format on
  expect_limits(4, "READG2", rows);
}

TEST(READG2, LoadsDepthRowsAndWarnings) {
  const std::string skin = "READG2 : TCMP,TTNS ERROR  N,IERR=",
                    weight = " **** SR/READG2 : TYP,GAMTOT,GAMMAW=    1";
  // clang-format off
  const change_rows rows{
      {[](P p) { p.data.PointLoads.assign(46, 1.0); }, refused("READG2 : NUMFRC ERROR  NUMFRC,MAX=   46   45")},
      {[](P p) { p.data.PointLoads.assign(45, 1.0), p.data.PointLoadDistances.assign(45, 2.0); }, ""},
      // The sequence is judged over all rows before the values of the first.
      {[](P p) { row(p, 2).Z = row(p, 1).TipStress = -1; }, refused("READG2 : TZ/QZ SEQUENCE ERROR  2    0.00   -1.00")},
      // Three items for two integers: the second record begins with the format's own head.
      {[](P p) { row(p, 1).SkinFrictionTension = -5.5; }, refused(skin + "    1 30\n\n **** SR/" + skin + " -5.5")},
      {[](P p) { row(p, 1).SkinFrictionCompression = -5.5; }, refused(skin + "    1 -5.5\n\n **** SR/" + skin + " 20")},
      {[](P p) { row(p, 1).SkinFrictionTension = 30.0; }, ""},
      {[](P p) { row(p, 1).SkinFrictionTension = 30.1; }, passed(" **** WARNING FROM SR/READG2 : TCMP.LT.cmn.ttns    1    30.000    30.100")},
      {[](P p) { soil(p, 1).TotalUnitWeight = 30.0; }, ""},
      {[](P p) { soil(p, 1).TotalUnitWeight = 30.1; }, passed(weight + "    30.100    10.000")},
      {[](P p) { soil(p, 1).TotalUnitWeight = 0.99; }, passed(weight + "     0.990    10.000")},
      {[](P p) { p.data.Layers.push_back({}); }, ""},  // behind the last layer nothing is looked at
  };
  // clang-format on
  expect_changes(4, rows);
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
