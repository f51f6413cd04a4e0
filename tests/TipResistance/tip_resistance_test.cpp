// Tip resistance methods against published and hand-worked values. More of the published values stand on the
// validation page.

#include <tuple>

#include "support/scratch_run.hpp"
#include "TipResistance/APITipResistance.hpp"
#include "TipResistance/ICPXXTS.hpp"
#include "TipResistance/NGI05TS.hpp"

namespace tervak {
namespace {

constexpr double EXACT = 1e-6;
constexpr double SECTION = 0.7853975;  // of a pile 1 m wide, as the methods have pi / 4

/// A pile for the Imperial College methods; MCSAND and IDOPCL are whole numbers.
struct icp_pile {
  double MCSAND = 4, SIGZ = 100, DR = 0.8, CPTTIP = 25000, CPTAVR = 25000, DIAM = 0.76, WALL = 0.03;
  double IDOPCL = 1, QINS = 1e6;
};

class TipResistance : public scratch_run {
 protected:
  int IERR = 0, IDTIP = 0;
  double QPLGD = 0, QPLUG = 0, QCORE = 0;

  void api(double MCSAND, double SIGZ, double PHI, double SIGMAX, double QINS = 1e6, int IDOPCL = 1) {
    APITipResistance(cmn, static_cast<int>(MCSAND), SIGZ, PHI, SIGMAX, 1.0, 0.05, QINS, IDOPCL, QPLGD, QPLUG,
                     QCORE, IDTIP, IERR = 0);
  }
  void icp(const icp_pile& p) {
    ICPXXTS(cmn, static_cast<int>(p.MCSAND), p.SIGZ, p.DR, p.CPTTIP, p.CPTAVR, p.DIAM, p.WALL,
            static_cast<int>(p.IDOPCL), p.QINS, QPLGD, QPLUG, QCORE, IDTIP, IERR = 20);
  }
  void ngi(double SIGZ, double DR, double CPTTIP, double CPTAVR, int IDOPCL = 1, double QINS = 1e6,
           double PLUGL = 15) {
    NGI05TS(cmn, SIGZ, DR, CPTTIP, CPTAVR, 1.0, 0.05, IDOPCL, QINS, QINS / 2, PLUGL, 101.3, QPLGD, QPLUG,
            QCORE, IDTIP, IERR = 0);
  }
};

// MCSAND, SIGZ, PHI, SIGMAX, stress, code. Left: the formula below 30 degrees, its limit there and as at 35
// degrees; the table of API RP 2A, 6.4.3, its limit, and a limit given. Middle: between and beyond the rows
// of the table; the formula from 30 degrees and as at 35 degrees. Right: the first test that hits.
TEST_F(TipResistance, Api) {
  const double rows[][6] = {
      {1, 100, 25, 0, 1332.765814, 0},  {2, 100, 32, 0, 2800, 0}, {0, 1, 1, 0, 0, 1},
      {1, 1000, 25, 0, 3163.814986, 0}, {2, 100, 5, 0, 800, 0},   {3, 1, 1, 0, 0, 2},
      {1, 1000, 50, 0, 9607.685611, 0}, {2, 100, 45, 0, 5000, 0}, {2, 0, 0.5, 0, 0, 3},
      {2, 100, 35, 0, 4000, 0},         {1, 100, 32, 0, 2800, 0}, {2, 1, 0.99, 0, 0, 4},
      {2, 1000, 32, 3000, 3000, 0},     {1, 100, 50, 0, 4000, 0}, {2, 1e4, 35, 0, 9600, 0},
  };
  for (const auto& [MCSAND, SIGZ, PHI, SIGMAX, stress, code] : rows) {
    QPLGD = 0;
    api(MCSAND, SIGZ, PHI, SIGMAX);
    EXPECT_EQ(IERR, code);
    EXPECT_NEAR(QPLGD / SECTION, stress, stress * EXACT);
  }
}

// Inner diameter 0.7 against a limit of 1 m at density 0.8; the cone asks for 23427 kPa.
TEST_F(TipResistance, ImperialCollegeCapacities) {
  const struct {
    const char* what;
    icp_pile pile;
    double QPLGD, QPLUG, QCORE;
    int IDTIP;
  } rows[] = {
      {"open, not plugged", {.DR = 0.6, .DIAM = 1.83, .WALL = 0.05}, 9863.316329, 0, 6990.03775, 1},
      {"plugged at a limit of 0.72", {.DR = 0.66}, 1915.203553, 1e6, 1720.020525, 2},
      {"1996: outer diameter", {.MCSAND = 3, .DR = 0.66}, 1915.203553, 0, 1720.020525, 1},
      {"1996: whatever the cone", {.MCSAND = 3, .CPTAVR = 22000}, 1720.020525, 1e6, 1720.020525, 2},
      {"plug too weak", {.QINS = 0}, 1915.203553, 1152.784804, 1720.020525, 2},
      {"cone resistance too low", {.CPTTIP = 22000, .CPTAVR = 22000}, 1685.379127, 0, 1513.618062, 1},
      {"sand too loose", {.DR = 0.6}, 1915.203553, 0, 1720.020525, 1},
      {"plugged, annulus governs", {.DR = 0.6, .WALL = 0.2}, 8796.452, 1e6, 8796.452, 2},
      {"coring, annulus governs", {.DR = 0.4, .WALL = 0.2}, 13194.678, 0, 8796.452, 1},
      {"closed", {.CPTAVR = 20000, .IDOPCL = 2}, 3064.325685, 0, 0, 2},
      {"closed, floor 0.3", {.CPTAVR = 20000, .DIAM = 9, .IDOPCL = 2}, 381703.185, 0, 0, 2},
      {"1996: 0.13", {.MCSAND = 3, .CPTAVR = 20000, .DIAM = 9, .IDOPCL = 2}, 165404.7135, 0, 0, 2},
      {"floor 0.15", {.CPTTIP = 1000, .CPTAVR = 20000, .DIAM = 9}, 190851.5925, 0, 845.40187, 1},
      {"1996: 0.065", {3, 100, 0.8, 1000, 20000, 9, 0.03}, 82702.35675, 0, 845.40187, 1},
  };
  for (const auto& row : rows) {
    icp(row.pile);
    EXPECT_NEAR(QPLGD, row.QPLGD, row.QPLGD * EXACT) << row.what;
    EXPECT_NEAR(QPLUG, row.QPLUG, 1e-3) << row.what;
    EXPECT_NEAR(QCORE, row.QCORE, 1e-3) << row.what;
    EXPECT_EQ(IDTIP, row.IDTIP) << row.what;
  }
}

// Strength and length of the plug (API has none), IDOPCL; plug, annulus, IDTIP. API: against 3927. NGI: 3 *
// 0.2 / 0.9 + 1 = 1.6667 times 500, plus 500; at most 3 times 1000, plus 1000; against 6608.
TEST_F(TipResistance, APlugThatIsTooWeakMeansCoringUnlessTheTipIsClosed) {
  const double rows[][6] = {
      {3100, 0, 1, 3100, 746.127625, 1},         {3100, 0, 2, 0, 0, 2},
      {3200, 0, 1, 3200, 746.127625, 2},         {2000, 15, 1, 4000, 3730.638125, 2},
      {1000, 3, 1, 1333.333343, 3730.638125, 1}, {2000, 15, 2, 0, 0, 2},
  };
  for (const auto& [QINS, PLUGL, IDOPCL, plug, annulus, tip] : rows) {
    if (PLUGL == 0) api(2, 100, 40, 0, QINS, static_cast<int>(IDOPCL));
    if (PLUGL > 0) ngi(100, 0.6, 25000, 25000, static_cast<int>(IDOPCL), QINS, PLUGL);
    EXPECT_NEAR(QPLUG, plug, 1e-5);
    EXPECT_NEAR(QCORE, annulus, 1e-5);
    EXPECT_EQ(IDTIP, tip);
  }
  EXPECT_NEAR(QPLGD / SECTION, 14705.88, 0.005) << "Clausen, Aas and Karlsrud 2005, closed";
}

// SIGZ, DR, CPTTIP, CPTAVR, code, where the checks differ from those of the Imperial College methods.
TEST_F(TipResistance, NgiCodes) {
  const double rows[][5] = {{100, 0.5, 25000, 202600, 0},
                            {100, 0.5, 25000, 202601, 9},
                            {100, 1.51, 202601, 1, 7},
                            {0, 0.5, 1, 1, 3}};
  for (const auto& [SIGZ, DR, CPTTIP, CPTAVR, code] : rows) {
    ngi(SIGZ, DR, CPTTIP, CPTAVR);
    EXPECT_EQ(IERR, code);
  }
}

TEST_F(TipResistance, TheLastFaultOfAPileGivesTheCode) {
  using pile = icp_pile;
  icp({.CPTTIP = 200000, .CPTAVR = 200000, .WALL = 0.38});
  EXPECT_EQ(IERR, 0);
  pile spoilt = {.WALL = 0.01};
  const std::tuple<int, double pile::*, double> faults[] = {
      {1, &pile::MCSAND, 2},      {2, &pile::MCSAND, 6},   {3, &pile::SIGZ, 0},
      {4, &pile::DR, -0.1},       {5, &pile::DR, 1.51},    {6, &pile::CPTTIP, 0},
      {7, &pile::CPTTIP, 200001}, {8, &pile::CPTAVR, 0},   {9, &pile::CPTAVR, 200001},
      {10, &pile::DIAM, 0.049},   {11, &pile::DIAM, 10.1}, {12, &pile::WALL, 9e-4},
      {13, &pile::WALL, 5.06},    {14, &pile::IDOPCL, 0},  {15, &pile::IDOPCL, 3},
  };
  for (const auto& [code, field, value] : faults) {
    spoilt.*field = value;
    icp(spoilt);
    EXPECT_EQ(IERR, code);
  }
}

TEST_F(TipResistance, Prints) {
  icp({.WALL = 0.39});
  ngi(100, -1, 25000, 25000);
  EXPECT_EQ(printed(18),
            "\n **** SR/ICPXXTS ERROR   IERR =    13\n\n **** SR/NGI05TS ERROR   IERR =     4\n");
  EXPECT_EQ(printed(16), "") << "a failed check traces nothing";
  APITipResistance(cmn, 2, 100, 32, 0, 1.0, 0.05, 1000, 1, QPLGD, QPLUG, QCORE, IDTIP, IERR = 20);
  NGI05TS(cmn, 100, 0.6, 25000, 25000, 1.0, 0.05, 1, 1e6, 5e5, 15, 101.3, QPLGD, QPLUG, QCORE, IDTIP,
          IERR = 20);
  EXPECT_EQ(printed(20),
            "\n SR/APITipResistance trace print\n"
            " MCSAND  SIGZ   PHI   SIGMAX   DIAM   WALL    QINS    QPLGD    QCORE IDTIP IERR\n"
            "    2   100.0  32.0      0.0  1.000  0.050   1000.0   2199.1    417.8   1   0\n"
            "\n Routine NGI05TS trace print\n"
            "    SIGZ   DR   CPTTIP  CPTAVR   DIAM   WALL IDOPCL   QINS       QICLAY\n"
            "   100.0  0.60   25000   25000  1.000  0.050    1   1.000E+06   5.000E+05\n"
            "   QPLGD      QCORE     IDTIP   IERR\n  6.608E+03  3.731E+03     2      0\n");
}

}  // namespace
}  // namespace tervak
