#include "IO/input/input_profile.hpp"

namespace {

Vrsk::Plin::TervakExchange::TervakInputData& data(P p) { return p.data; }

// Counts that no deck brings, since its rows are counted.
TEST(READGE, JudgesCounts) {
  using input = Vrsk::Plin::TervakExchange::TervakInputData;
  const struct {
    int input::*count;
    int value;
    const char* message;  // none: it passes
  } rows[] = {{&input::NumberOfSoilTypes, 0, "NUMTYP ERROR  NUMTYP,MAX=    0  500"},
              {&input::NumberOfSoilTypes, 501, "NUMTYP ERROR  NUMTYP,MAX=  501  500"},
              {&input::NumberOfTzQzRows, 0, "NUMTQZ ERROR  NUMTQZ,MAX=    010000"},
              {&input::NumberOfTzQzRows, 10001, "NUMTQZ ERROR  NUMTQZ,MAX=1000110000"},
              {&input::NumberOfDisplacements, -1, "NUMDSP ERROR  NUMDSP,MAX=   -1   50"},
              {&input::NumberOfDisplacements, 50, nullptr},
              {&input::NumberOfDisplacements, 51, "NUMDSP ERROR  NUMDSP,MAX=   51   50"}};
  for (const auto& [count, value, message] : rows) {
    Tervak p = valid_profile(4);
    for (int n = 1; n <= 50; ++n) data(p).SoilDisplacements.push_back({1.0 * n, 0, 0, 0, 0});
    data(p).NumberOfDisplacements = 0;
    data(p).*count = value;
    expect_log(p, message == nullptr ? "" : refused(std::string("READGE : ") + message));
  }
  Tervak p = valid_profile(4);
  data(p).Diameters.clear();
  expect_log(p, refused("READGE : NUMDIA ERROR  NUMDIA,MAX=    0   50"));
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
      {"\xEF\xBB\xBF" + wide + "\nlast", wide.substr(10) + "\n" + padded("last")},
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
