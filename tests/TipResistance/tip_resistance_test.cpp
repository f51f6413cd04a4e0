// Tip resistance methods against published and hand-worked values.

#include <utility>

#include "support/scratch_run.hpp"
#include "TipResistance/APITipResistance.hpp"
#include "TipResistance/ICPXXTS.hpp"
#include "TipResistance/NGI05TS.hpp"

namespace tervak {
namespace {

constexpr double EXACT = 1e-6;
constexpr double SECTION = 0.7853975;  // of a pile 1 m wide, as the methods have pi / 4

class TipResistance : public scratch_run {
 protected:
  int IERR = 0, IDTIP = 0;
  double QPLGD = 0, QPLUG = 0, QCORE = 0;

  double api(double SIGZ, double PHI, int MCSAND = 2, double SIGMAX = 0, double QINS = 1e6, int IDOPCL = 1) {
    APITipResistance(cmn, MCSAND, SIGZ, PHI, SIGMAX, 1.0, 0.05, QINS, IDOPCL, QPLGD, QPLUG, QCORE, IDTIP,
                     IERR = 0);
    return QPLGD / SECTION;
  }
  double icp(double DR, double CPTTIP, double CPTAVR, double DIAM, double WALL, int IDOPCL = 1,
             int MCSAND = 4, double QINS = 1e6, double SIGZ = 100) {
    ICPXXTS(cmn, MCSAND, SIGZ, DR, CPTTIP, CPTAVR, DIAM, WALL, IDOPCL, QINS, QPLGD, QPLUG, QCORE, IDTIP,
            IERR = 20);
    return QPLGD;
  }
  double ngi(double DR, double CPT, int IDOPCL = 1, double QINS = 1e6, double PLUGL = 15,
             double CPTTIP = 25000, double SIGZ = 100) {
    NGI05TS(cmn, SIGZ, DR, CPTTIP, CPT, 1.0, 0.05, IDOPCL, QINS, QINS / 2, PLUGL, 101.3, QPLGD, QPLUG, QCORE,
            IDTIP, IERR = 0);
    return QPLGD / SECTION;
  }
};

TEST_F(TipResistance, Stresses) {
  const char* table = "API RP 2A, 6.4.3, factor";
  const char* limit = "API RP 2A, 6.4.3, limit";
  const checked_value rows[] = {
      {table, api(100, 20), 800, EXACT},
      {table, api(100, 25), 1200, EXACT},
      {table, api(100, 30), 2000, EXACT},
      {table, api(100, 35), 4000, EXACT},
      {table, api(100, 40), 5000, EXACT},
      {limit, api(1e4, 20), 1900, EXACT},
      {limit, api(1e4, 25), 2900, EXACT},
      {limit, api(1e4, 30), 4800, EXACT},
      {limit, api(1e4, 35), 9600, EXACT},
      {limit, api(1e4, 40), 12000, EXACT},
      {"between two rows", api(100, 32), 2800, EXACT},
      {"limit between two rows", api(1000, 32), 6720, EXACT},
      {"below the table", api(100, 5), 800, EXACT},
      {"above the table", api(100, 45), 5000, EXACT},
      {"limit given", api(1000, 32, 2, 3000), 3000, EXACT},
      {"formula below 30 degrees", api(100, 25, 1), 1332.765814, EXACT},
      {"formula from 30 degrees", api(100, 32, 1), 2800, EXACT},
      {"formula, as 35 degrees", api(100, 50, 1), 4000, EXACT},
      {"formula, limit", api(1000, 25, 1), 3163.814986, EXACT},
      {"formula, limit as at 35 degrees", api(1000, 50, 1), 9607.685611, EXACT},
      {"NGI-05, open, plugged", ngi(0.6, 25000), 8413.46, 0.005 / 8413},
      {"NGI-05, closed", ngi(0.6, 25000, 2), 14705.88, 0.005 / 14705},
  };
  expect_all(rows);
}

TEST_F(TipResistance, ImperialCollegeCapacities) {
  const struct {
    const char* source;
    double got, plug, core;
    int tip;
    double expected, expected_plug, expected_core;
    int expected_tip;
  } rows[] = {
      {"open, not plugged", icp(0.6, 25000, 25000, 1.83, 0.05), QPLUG, QCORE, IDTIP, 9863.316329, 0,
       6990.03775, 1},
      {"plugged", icp(0.8, 25000, 25000, 0.76, 0.03), QPLUG, QCORE, IDTIP, 1915.203553, 1e6, 1720.020525, 2},
      {"plug too weak", icp(0.8, 25000, 25000, 0.76, 0.03, 1, 4, 0), QPLUG, QCORE, IDTIP, 1915.203553,
       1152.784804, 1720.020525, 2},
      {"cone resistance too low", icp(0.8, 22000, 22000, 0.76, 0.03), QPLUG, QCORE, IDTIP, 1685.379127, 0,
       1513.618062, 1},
      {"sand too loose", icp(0.6, 25000, 25000, 0.76, 0.03), QPLUG, QCORE, IDTIP, 1915.203553, 0, 1720.020525,
       1},
      {"density below 0.3", icp(0.2, 25000, 25000, 0.76, 0.03), QPLUG, QCORE, IDTIP, 1915.203553, 0,
       1720.020525, 1},
      {"plugged, annulus governs", icp(0.6, 25000, 25000, 0.76, 0.2), QPLUG, QCORE, IDTIP, 8796.452, 1e6,
       8796.452, 2},
      {"coring, annulus governs", icp(0.4, 25000, 25000, 0.76, 0.2), QPLUG, QCORE, IDTIP, 13194.678, 0,
       8796.452, 1},
      {"closed", icp(0.6, 25000, 20000, 0.76, 0.03, 2), QPLUG, QCORE, IDTIP, 3064.325685, 0, 0, 2},
      {"closed, floor 0.3", icp(0.6, 25000, 20000, 9, 0.03, 2), QPLUG, QCORE, IDTIP, 381703.185, 0, 0, 2},
      {"closed, 1996 floor 0.13", icp(0.6, 25000, 20000, 9, 0.03, 2, 3), QPLUG, QCORE, IDTIP, 165404.7135, 0,
       0, 2},
      {"open, floor 0.15", icp(0.6, 1000, 20000, 9, 0.03), QPLUG, QCORE, IDTIP, 190851.5925, 0, 845.40187, 1},
      {"open, 1996 floor 0.065", icp(0.6, 1000, 20000, 9, 0.03, 1, 3), QPLUG, QCORE, IDTIP, 82702.35675, 0,
       845.40187, 1},
      {"1996 plug test", icp(0.8, 25000, 25000, 0.76, 0.03, 1, 3), QPLUG, QCORE, IDTIP, 1915.203553, 1e6,
       1720.020525, 2},
  };
  for (const auto& row : rows) {
    EXPECT_NEAR(row.got, row.expected, row.expected * EXACT) << row.source;
    EXPECT_NEAR(row.plug, row.expected_plug, 1e-3) << row.source;
    EXPECT_NEAR(row.core, row.expected_core, 1e-3) << row.source;
    EXPECT_EQ(row.tip, row.expected_tip) << row.source;
  }
}

TEST_F(TipResistance, APlugThatIsTooWeakMeansCoringUnlessTheTipIsClosed) {
  api(100, 40, 2, 0, 3100);  // annulus 746, plugged 3927
  EXPECT_EQ(IDTIP, 1);
  EXPECT_NEAR(QCORE, 746.127625, 1e-5);
  api(100, 40, 2, 0, 3200);
  EXPECT_EQ(IDTIP, 2);
  EXPECT_EQ(QPLUG, 3200);
  api(100, 40, 2, 0, 3100, 2);
  EXPECT_EQ(IDTIP, 2);
  EXPECT_EQ(QPLUG + QCORE, 0);

  ngi(0.6, 25000, 1, 1000, 3);  // 3 * 0.2 / 0.9 + 1 = 1.6667 times 500, plus 500
  EXPECT_NEAR(QPLUG, 1333.333343, 1e-5);
  EXPECT_NEAR(QCORE, 3730.638125, 1e-5);
  EXPECT_EQ(IDTIP, 1) << "5064 against 6608";
  ngi(0.6, 25000, 1, 2000, 15);
  EXPECT_NEAR(QPLUG, 4000.0, 1e-9) << "factor at most 3";
  EXPECT_EQ(IDTIP, 2);
}

TEST_F(TipResistance, Codes) {
  const auto code = [&](double) { return IERR; };
  const std::pair<int, int> rows[] = {
      {code(api(1, 1, 0)), 1},
      {code(api(1, 1, 3)), 2},
      {code(api(0, 0.5)), 3},
      {code(api(1, 0.99)), 4},
      {code(icp(0.5, 1, 1, 1, 0.1, 1, 2)), 1},
      {code(icp(0.5, 1, 1, 1, 0.1, 1, 6)), 2},
      {code(icp(0.5, 1, 1, 1, 0.1, 1, 6, 1, 0)), 3},
      {code(icp(-0.1, 1, 1, 1, 0.1, 1, 4, 1, 0)), 4},
      {code(icp(1.51, 1, 1, 1, 0.1)), 5},
      {code(icp(1.51, 0, 1, 1, 0.1)), 6},
      {code(icp(0.5, 200001, 1, 1, 0.1)), 7},
      {code(icp(0.5, 200001, 0, 1, 0.1)), 8},
      {code(icp(0.5, 1, 200001, 1, 0.1)), 9},
      {code(icp(0.5, 200000, 200000, 0.049, 0.01)), 10},
      {code(icp(0.5, 1, 1, 10.1, 0.01)), 11},
      {code(icp(0.5, 1, 1, 10.1, 0.0009)), 12},
      {code(icp(0.5, 1, 1, 1, 0.51)), 13},
      {code(icp(0.5, 1, 1, 1, 0.51, 0)), 14},
      {code(icp(0.5, 1, 1, 1, 0.5, 3)), 15},
      {code(ngi(0.5, 202600)), 0},
      {code(ngi(0.5, 202601)), 9},
      {code(ngi(1.51, 1, 1, 1, 1, 202601)), 7},
      {code(ngi(0.5, 1, 1, 1, 1, 1, 0)), 3},
  };
  int row = 0;
  for (const auto& [got, expected] : rows) EXPECT_EQ(got, expected) << "row " << ++row;
}

TEST_F(TipResistance, Prints) {
  icp(0.5, 1, 1, 1, 0.51);
  ngi(-1, 25000);
  EXPECT_EQ(printed(18),
            "\n **** SR/ICPXXTS ERROR   IERR =    13\n\n **** SR/NGI05TS ERROR   IERR =     4\n");
  EXPECT_EQ(printed(16), "") << "a failed check traces nothing";
  icp(0.8, 25000, 25000, 0.76, 0.03);
  EXPECT_EQ(printed(16), R"(
 Routine ICPXXTS trace print
 MCSAND  SIGZ   DR   CPTTIP  CPTAVR   DIAM   WALL IDOPCL   QINS
    4   100.0  0.80   25000   25000  0.760  0.030    1   1.000E+06
   QPLGD      QCORE     IDTIP   IERR
  1.915E+03  1.720E+03    2     0
)");
  APITipResistance(cmn, 2, 100, 32, 0, 1.0, 0.05, 1000, 1, QPLGD, QPLUG, QCORE, IDTIP, IERR = 20);
  NGI05TS(cmn, 100, 0.6, 25000, 25000, 1.0, 0.05, 1, 1e6, 5e5, 15, 101.3, QPLGD, QPLUG, QCORE, IDTIP,
          IERR = 20);
  EXPECT_EQ(printed(20), R"(
 SR/APITipResistance trace print
 MCSAND  SIGZ   PHI   SIGMAX   DIAM   WALL    QINS    QPLGD    QCORE IDTIP IERR
    2   100.0  32.0      0.0  1.000  0.050   1000.0   2199.1    417.8   1   0

 Routine NGI05TS trace print
    SIGZ   DR   CPTTIP  CPTAVR   DIAM   WALL IDOPCL   QINS       QICLAY
   100.0  0.60   25000   25000  1.000  0.050    1   1.000E+06   5.000E+05
   QPLGD      QCORE     IDTIP   IERR
  6.608E+03  3.731E+03     2      0
)");
}

}  // namespace
}  // namespace tervak
