#include "IO/input_profile.hpp"

namespace {

std::string padded(std::string line) {
  line.resize(120, ' ');
  return line + "\n";
}

Vrsk::Plin::TervakExchange::TervakInputData& data(P p) { return p.data; }

void displace(P p, int points) {
  for (int n = 1; n <= points; ++n) data(p).SoilDisplacements.push_back({1.0 * n, 0, 0, 0, 0});
}

TEST(READGE, Limits) {
  // clang-format off
  const std::vector<limit_row> rows{
      {[](P p) { return &data(p).NumberOfSoilTypes; }, {0, 501}, {}, "NUMTYP ERROR  NUMTYP,MAX=%5.0f  500"},
      {[](P p) { return &data(p).NumberOfTzQzRows; }, {0, 10001}, {}, "NUMTQZ ERROR  NUMTQZ,MAX=%5.0f10000"},
      {[](P p) { return data(p).Layers[0].LastLayer = 500, &data(p).NumberOfLayers; }, {0, 501}, {500}, "NUMLAYM ERROR  NUMLAYM,MAX=%5.0f  500"},
      {[](P p) { return displace(p, 50), &data(p).NumberOfDisplacements; }, {-1, 51}, {0, 50}, "NUMDSP ERROR  NUMDSP,MAX=%5.0f   50"},
      {[](P p) { return &data(p).LevelSwitch; }, {0, 3}, {1, 2}, "MIDBOT ERROR  MIDBOT = %5.0f"},
      {[](P p) { return &p.waterUnitWeight; }, {0, -1}, {7}, "GAMWAT ERROR  GAMWAT = %10.3f"},
      {[](P p) { return &data(p).AtmosphericPressure; }, {0, -1}, {10}, "ATMPRS ERROR  ATMPRS =%10.3f"},
      {[](P p) { return &p.tanPhiCoeff; }, {0, -1}, {0.5}, "SFTPHI ERROR  SFTPHI =%10.3f"},
      {[](P p) { return &p.shearStrengthCoeff; }, {0, -1}, {0.5}, "SFSU ERROR  SFSU =%10.3f"},
      {[](P p) { return &p.skinFrictionCoeff; }, {0, -1}, {0.5}, "SFSKF ERROR  SFSKF =%10.3f"},
      {[](P p) { return &p.pileTipResistanceCoeff; }, {0, -1}, {0.5}, "SFSIGT ERROR  SFSIGT =%10.3f"},
      {[](P p) { return &data(p).Diameters[1]; }, {1.0, 0.5}, {1.001}, "DIAM SEQUENCE ERROR     1.000%10.3f"},
      {[](P p) { return &p.modulusOfElasticitySlope; }, {-1}, {0}, "ESOL0,ESOL1 ERROR     0.000%10.3f"},
      {[](P p) { return &p.averagePoissonRatio; }, {-0.1, 0.501}, {0, 0.5}, "POSAVR ERROR%10.3f"},
      {[](P p) { return &p.depthOfScour; }, {-1, 0.5}, {0}, "SCRGEN,SCRLOC ERROR%10.3f     0.000"},
      {[](P p) { return &data(p).PorePressureUnitWeight; }, {-1, 21.001}, {0, 20.999}, "GAMPWP,GAMMAW ERROR%10.3f    10.000"},
  };
  // clang-format on
  expect_limits(4, "READGE", rows);
}

// A flat side of the scour is refused only where there is a hole; the slope comes in radians.
TEST(READGE, SlopesDiametersAndWarnings) {
  const std::string slope = "READGE : LOCAL SCOUR SLOPE ERROR", warning = " **** WARNING FROM SR/READGE : ";
  // clang-format off
  const std::vector<change_row> rows{
      {[](P) {}, ""},
      {[](P p) { p.depthOfLocalScour = 1.0; }, refused(slope + "     0.000")},
      {[](P p) { p.depthOfLocalScour = 1.0, p.sideSlope = 0.002; }, ""},
      {[](P p) { p.sideSlope = -0.1; }, refused(slope + "    -5.730")},
      {[](P p) { p.sideSlope = 1.57; }, refused(slope + "    89.954")},
      {[](P p) { p.sideSlope = 1.569; }, ""},
      {[](P p) { data(p).Diameters.clear(); }, refused("READGE : NUMDIA ERROR  NUMDIA,MAX=    0   50")},
      {[](P p) { p.lowestShearStiff = 0.0; }, passed(warning + "SUSTIF =      0.000")},
      {[](P p) { p.lowestShearStiff = 1000.0; }, ""},
      {[](P p) { p.lowestShearStiff = 1001.0; }, passed(warning + "SUSTIF =   1001.000")},
      {[](P p) { data(p).PrintLevel = 3; }, passed(warning + "JPRINT =    3")},
      {[](P p) { data(p).EchoSwitch = 2; }, passed(warning + "JECHO =    2")},
      {[](P p) { data(p).PrintLevel = data(p).EchoSwitch = -1; }, ""},
  };
  // clang-format on
  expect_changes(4, rows);
}

TEST(READGE, ReplacesSwitchesScalesAndThirdModulus) {
  struct row {
    int revision, given, JPRINT, JECHO;
    double third, ESOL2;
  };
  const double limit = double{0.01f};
  for (const row& r : {row{5, -1, 0, 0, 0.5, 0.5},
                       {5, 1, 1, 1, limit, limit},
                       {5, 2, 2, 1, 0.0099, 1.0},
                       {4, 3, 2, 1, 0.5, 1.0}}) {
    input_run run;
    Tervak p = valid_profile(r.revision);
    p.data.PrintLevel = p.data.EchoSwitch = r.given;
    p.data.UnitF = 0.0;
    p.data.UnitM = -1000.0;
    p.data.ThirdModulus = r.third;
    p.data.Boring = "Boring B-21x";
    run.read(p);
    EXPECT_EQ(run.cmn.JPRINT, r.JPRINT) << r.given;
    EXPECT_EQ(run.cmn.JECHO, r.JECHO) << r.given;
    EXPECT_EQ(run.cmn.UNITF, 1.0);
    EXPECT_EQ(run.cmn.UNITM, 1.0);
    EXPECT_EQ(run.cmn.ESOL2, r.ESOL2) << r.third;
    EXPECT_EQ(run.cmn.BORING.view(), r.revision == 5 ? "Boring B-2" : std::string(10, '\0'));
    EXPECT_EQ(run.cmn.LABEL.view(), "Valid profile" + std::string(67, ' '));
    EXPECT_EQ(run.cmn.NUMTYP, r.revision == 5 ? 0 : 2);
  }
}

TEST(READGE, FiftyOneDiametersEndWithoutTheReport) {
  input_run run;
  Tervak p = valid_profile(4);
  for (int n = 3; n <= 51; ++n) p.data.Diameters.push_back(n);
  run.read(p);
  EXPECT_EQ(run.log(), "\n **** SR/READGE : NUMDIA,MAXDIA=   51   50\n");
  EXPECT_EQ(run.cmn.IERR, 1);
  p.data.Diameters.pop_back();
  expect_log(p, "");
}

TEST(READGE, RefusesAProfileThatTheDeckHasNot) {
  input_run run;
  run.read(valid_profile(4));
  tervak::READGE(run.cmn, 2);
  EXPECT_EQ(run.log(), refused("READGE : PROFILECOUNT,NUMBEROFPROFILES=    2    1"));
}

TEST(READGE, ConvertsToRunUnits) {
  input_run run;
  Tervak p = valid_profile(5);
  p.data.UnitM = 10.0;
  p.data.UnitF = 3.0;
  p.data.PointLoads = {40.0};
  p.data.PointLoadDistances = {2.0};
  p.modulusOfElasticity = 500.0;
  p.modulusOfElasticitySlope = 100.0;
  p.sideSlope = 0.5;
  p.data.PyModification.Records = {{1, 4, 1.0, 0.5, 0.5, 0.25, 0.5, 0.5, 0.5}, {}};
  p.data.NumberOfDisplacements = 1;
  p.data.SoilDisplacements = {{1.0, 2.0, 3.0, 4.0, 5.0}};
  run.read(p);
  ASSERT_EQ(run.log(), "");
  const auto& c = run.cmn;
  struct row {
    const char* name;
    double actual, expected;
  };
  // clang-format off
  const row rows[] = {
      {"DIAM", c.DIAM(2), 15.0}, {"ATMPRS", c.ATMPRS, 3.0}, {"GAMWAT", c.GAMWAT, 0.03},
      {"ESOL0", c.ESOL0, 15.0}, {"ESOL1", c.ESOL1, 0.3},
      {"SCRSLP in degrees", c.SCRSLP, 28.64788975654116}, {"FRCPNT", c.FRCPNT(1), 120.0},
      {"FRCDST", c.FRCDST(1), 20.0}, {"CPTTOP times 1000", c.CPTTOP(2), 60.0},
      {"KSOILM", c.KSOILM(1), 2.1}, {"SUBOT", c.SUBOT(1), 1.5}, {"TZZRSM", c.TZZRSM(1), 0.1},
      {"ZTIP", c.ZTIP, 40.0}, {"PYGAP", c.PYMOD(1, 2)[2], 2.5}, {"PYDEND", c.PYMOD(1, 2)[5], 0.5},
      {"default PYGAP", c.PYMOD(2, 2)[2], 0.0}, {"DSPZ", c.DSPZ(1), 40.0}, {"HOLDIA", c.HOLDIA(1), 50.0},
  };
  // clang-format on
  for (const row& r : rows) EXPECT_NEAR(r.actual, r.expected, 1e-12 * r.expected) << r.name;
}

TEST(READGE, ASecondProfileLeavesNoTraceOfTheFirst) {
  input_run run;
  run.read(valid_profile(5));
  Tervak p = valid_profile(5);
  p.data.NumberOfMainLayers = 1;
  p.data.SkinFriction.PileTipZ = 3.0;
  p.data.PyModification.Records[0].L2 = 3;
  p.data.TzModification.Records[0].L2 = p.data.QzModification.Records[0].L2 = 3;
  run.read(p);
  EXPECT_EQ(run.log(), "");
  EXPECT_EQ(run.cmn.LAYCOD.size(), 3);
  EXPECT_EQ(run.cmn.ZBOTM.size(), 3);
  EXPECT_EQ(run.cmn.ZMAIN.size(), 1);
  EXPECT_EQ(run.cmn.NUMTQZ, 3);
}

TEST(READGE, CopiesTheFirstProfilesLinesWithoutComments) {
  struct row {
    std::string deck, copy;
  };
  const std::string wide(130, 'w');
  for (const auto& [deck, copy] : {row{"* heading\n\nCOMMENT\n*x\nc y\n a\r\nend\nENDING\nbehind\n",
                                       padded("* heading") + padded("") + padded(" a") + padded("end")},
                                   {wide + "\nlast", padded(std::string(120, 'w')) + padded("last")},
                                   {"END\nbehind\n", ""}}) {
    input_run run;
    input_run::write("deck", deck);
    fem::open(run.cmn.units, run.cmn.NFINP, "deck").status("OLD").finish();
    run.read(valid_profile(5));
    EXPECT_EQ(input_run::text("fem_io_unit_015"), copy);
    input_run::write("deck", "changed\n");
    run.read(valid_profile(5));  // the copy is made once
    EXPECT_EQ(input_run::text("fem_io_unit_015"), copy);
  }
}

TEST(READGE, TooFewRecordsThrow) {
  for (void (*const cut)(P) :
       {+[](P p) { p.data.SoilTypes.Records.pop_back(); }, +[](P p) { p.data.TzQzTable.pop_back(); },
        +[](P p) { p.data.Layers.pop_back(); }, +[](P p) { p.data.PointLoads = {1.0}; },
        +[](P p) { p.data.TzModification.Records.clear(); }, +[](P p) { p.data.NumberOfDisplacements = 1; },
        +[](P p) { p.data.Layers[0].PyCode = 0; }}) {
    Tervak p = valid_profile(4);
    cut(p);
    EXPECT_THROW(expect_log(p, ""), std::out_of_range);
  }
}

}  // namespace
