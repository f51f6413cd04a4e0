#include "IO/input/input_profile.hpp"

namespace {

Vrsk::Plin::TervakExchange::TervakInputData& data(P p) { return p.data; }

void displace(P p, int points) {
  for (int n = 1; n <= points; ++n) data(p).SoilDisplacements.push_back({1.0 * n, 0, 0, 0, 0});
}

TEST(READGE, Limits) {
  // clang-format off
  const std::vector<limit_row> rows{
      {[](P p, double x) { data(p).NumberOfSoilTypes = int(x); }, {0, 501}, {}, "NUMTYP ERROR  NUMTYP,MAX=%5.0f  500"},
      {[](P p, double x) { data(p).NumberOfTzQzRows = int(x); }, {0, 10001}, {}, "NUMTQZ ERROR  NUMTQZ,MAX=%5.0f10000"},
      {[](P p, double x) { data(p).Layers[0].LastLayer = 500, data(p).NumberOfLayers = int(x); }, {0, 501}, {500}, "NUMLAYM ERROR  NUMLAYM,MAX=%5.0f  500"},
      {[](P p, double x) { displace(p, 50), data(p).NumberOfDisplacements = int(x); }, {-1, 51}, {0, 50}, "NUMDSP ERROR  NUMDSP,MAX=%5.0f   50"},
      {[](P p, double x) { data(p).LevelSwitch = int(x); }, {0, 3}, {1, 2}, "MIDBOT ERROR  MIDBOT = %5.0f"},
      {[](P p, double x) { p.waterUnitWeight = x; }, {0, -1}, {7}, "GAMWAT ERROR  GAMWAT = %10.3f"},
      {[](P p, double x) { data(p).AtmosphericPressure = x; }, {0, -1}, {10}, "ATMPRS ERROR  ATMPRS =%10.3f"},
      {[](P p, double x) { p.tanPhiCoeff = x; }, {0, -1}, {0.5}, "SFTPHI ERROR  SFTPHI =%10.3f"},
      {[](P p, double x) { p.shearStrengthCoeff = x; }, {0, -1}, {0.5}, "SFSU ERROR  SFSU =%10.3f"},
      {[](P p, double x) { p.skinFrictionCoeff = x; }, {0, -1}, {0.5}, "SFSKF ERROR  SFSKF =%10.3f"},
      {[](P p, double x) { p.pileTipResistanceCoeff = x; }, {0, -1}, {0.5}, "SFSIGT ERROR  SFSIGT =%10.3f"},
      {[](P p, double x) { data(p).Diameters[1] = x; }, {1.0, 0.5}, {1.001}, "DIAM SEQUENCE ERROR     1.000%10.3f"},
      {[](P p, double x) { p.modulusOfElasticitySlope = x; }, {-1}, {0}, "ESOL0,ESOL1 ERROR     0.000%10.3f"},
      {[](P p, double x) { p.averagePoissonRatio = x; }, {-0.1, 0.501}, {0, 0.5}, "POSAVR ERROR%10.3f"},
      {[](P p, double x) { p.depthOfScour = x; }, {-1, 0.5}, {0}, "SCRGEN,SCRLOC ERROR%10.3f     0.000"},
      {[](P p, double x) { data(p).PorePressureUnitWeight = x; }, {-1, 21.001}, {0, 20.999}, "GAMPWP,GAMMAW ERROR%10.3f    10.000"},
  };
  // clang-format on
  expect_limits(4, "READGE", rows);
}

// A flat side of the scour is refused only where there is a hole; the slope comes in radians.
TEST(READGE, SlopesDiametersAndWarnings) {
  const std::string slope = "READGE : LOCAL SCOUR SLOPE ERROR", warning = " **** WARNING FROM SR/READGE : ";
  // clang-format off
  const change_rows rows{
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
  const double limit = double{0.01f};
  struct row {
    int revision, given;
    double third, JPRINT, JECHO, ESOL2;
  };
  for (const auto& [revision, given, third, JPRINT, JECHO, ESOL2] : {row{5, -1, 0.5, 0, 0, 0.5},
                                                                     {5, 1, limit, 1, 1, limit},
                                                                     {5, 2, 0.0099, 2, 1, 1},
                                                                     {4, 3, 0.5, 2, 1, 1}}) {
    input_run run;
    Tervak p = valid_profile(revision);
    p.data.PrintLevel = p.data.EchoSwitch = given;
    p.data.UnitF = 0.0;
    p.data.UnitM = -1000.0;
    p.data.ThirdModulus = third;
    p.data.Boring = "Boring B-21x";
    run.read(p);
    const auto& c = run.cmn;
    expect_values({1.0 * c.JPRINT, 1.0 * c.JECHO, c.ESOL2, c.UNITF, c.UNITM}, {JPRINT, JECHO, ESOL2, 1, 1});
    EXPECT_EQ(c.BORING.view(), revision == 5 ? "Boring B-2" : std::string(10, '\0'));
    EXPECT_EQ(c.LABEL.view(), "Valid profile" + std::string(67, ' '));
  }
}

TEST(READGE, FiftyOneDiametersEndWithoutTheReportAProfileThatIsNotThereWithIt) {
  input_run run;
  Tervak p = valid_profile(4);
  for (int n = 3; n <= 51; ++n) p.data.Diameters.push_back(n);
  run.read(p);
  const std::string diameters = "\n **** SR/READGE : NUMDIA,MAXDIA=   51   50\n";
  EXPECT_EQ(run.log(), diameters);
  EXPECT_EQ(run.cmn.IERR, 1);
  tervak::READGE(run.cmn, 2);
  EXPECT_EQ(run.log(), diameters + refused("READGE : PROFILECOUNT,NUMBEROFPROFILES=    2    1"));
}

// One metre is 10 units of length, one kilonewton 3 units of force; SCRSLP in degrees, CPTTOP times 1000.
TEST(READGE, ConvertsToRunUnits) {
  input_run run;
  Tervak p = valid_profile(5);
  p.data.UnitM = 10.0;
  p.data.UnitF = 3.0;
  p.data.PointLoads = {40.0};
  p.data.PointLoadDistances = {2.0};
  p.sideSlope = 0.5;
  p.data.PyModification.Records = {{1, 4, 1.0, 0.5, 0.5, 0.25, 0.5, 0.5, 0.5}, {}};
  run.read(p);
  ASSERT_EQ(run.log(), "");
  const auto& c = run.cmn;
  expect_values({c.DIAM(2), c.ATMPRS, c.GAMWAT, c.SCRSLP, c.FRCPNT(1), c.FRCDST(1)},
                {15.0, 3.0, 0.03, 28.64788975654116, 120.0, 20.0});
  expect_values({c.CPTTOP(2), c.PYMOD(1, 2)[2], c.PYMOD(1, 2)[5], c.PYMOD(2, 2)[2]}, {60.0, 2.5, 0.5, 0.0});
}

TEST(READGE, CopiesTheFirstProfilesLinesWithoutComments) {
  const auto padded = [](std::string line) { return line.append(120 - line.size(), ' ') + "\n"; };
  const std::string wide(130, 'w');
  const std::pair<std::string, std::string> rows[] = {
      {"* heading\n\nCOMMENT\n*x\nc y\n a\r\nend\nENDING\nbehind\n",
       padded("* heading") + padded("") + padded(" a") + padded("end")},
      {wide + "\nlast", wide.substr(10) + "\n" + padded("last")},
      {"END\nbehind\n", ""}};
  for (const auto& [deck, copy] : rows) {
    input_run run;
    input_run::put("fem_io_unit_014", deck);
    run.read(valid_profile(5));
    EXPECT_EQ(input_run::printed(15), copy);
    input_run::put("fem_io_unit_014", "changed\n");
    run.read(valid_profile(5));  // the copy is made once
    EXPECT_EQ(input_run::printed(15), copy);
  }
}

TEST(READGE, TooFewRecordsThrow) {
  for (void (*const cut)(P) :
       {+[](P p) { data(p).SoilTypes.Records.pop_back(); }, +[](P p) { data(p).TzQzTable.pop_back(); },
        +[](P p) { data(p).Layers.pop_back(); }, +[](P p) { data(p).PointLoads = {1.0}; },
        +[](P p) { data(p).TzModification.Records.clear(); }, +[](P p) { data(p).NumberOfDisplacements = 1; },
        +[](P p) { data(p).Layers[0].PyCode = 0; }}) {
    Tervak p = valid_profile(4);
    cut(p);
    EXPECT_THROW(expect_log(p, ""), std::out_of_range);
  }
}

}  // namespace
