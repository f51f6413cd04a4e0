// Skin friction methods against published and hand-worked values.

#include <utility>

#include "SkinFriction/API84SS.hpp"
#include "SkinFriction/API87SC.hpp"
#include "SkinFriction/ICP05SS.hpp"
#include "SkinFriction/ICP96SC.hpp"
#include "SkinFriction/NGI05SC.hpp"
#include "SkinFriction/NGI05SS.hpp"
#include "support/scratch_run.hpp"

namespace tervak {
namespace {

constexpr double EXACT = 1e-6, PI_SHORT = 3e-5;  // closed forms; the latter where pi is 3.14159

class SkinFriction : public scratch_run {
 protected:
  int IERR = 0;
  double comp = 0, tens = 0;

  double api_clay(double SU, double SIGZ) { return API87SC(cmn, SIGZ, SU, comp, IERR = 0), comp; }
  double ngi_clay(double SU, double SIGZ, double PLI, int IOPEN = 1) {
    return NGI05SC(cmn, SIGZ, SU, PLI, IOPEN, comp, IERR = 0), comp;
  }
  double icp_clay(double SIGZ, double OCR, double SU, double ST, double PLI, double RAT) {
    return ICP96SC(cmn, SIGZ, OCR, SU, ST, PLI, RAT, comp, IERR = 0), comp;
  }
  double api_sand(double SIGZ, double PHI, int IOC = 1) {
    return API84SS(cmn, SIGZ, PHI, IOC, comp, tens, IERR = 0), comp;
  }
  double icp_sand(double SIGZ, double QCPT, double D, double WALL, double H, double DELTAF, int IDOPCL = 1,
                  int MCSAND = 4, double D50 = 0) {
    return ICP05SS(cmn, MCSAND, SIGZ, QCPT, H, D / 2, WALL, DELTAF, D50, IDOPCL, comp, tens, IERR = 0), comp;
  }
  double ngi_sand(double SIGZ, double DR, double Z, double ZTIP, int IDOPCL = 1, int MATPIL = 1) {
    cmn.MATPIL = MATPIL;
    return NGI05SS(cmn, SIGZ, DR, ZTIP, Z, IDOPCL, comp, tens, IERR = 0), comp;
  }
};

TEST_F(SkinFriction, Clay) {
  const char* api = "API RP 2A, 6.4.2";
  const char* ngi = "Karlsrud, Clausen and Aas 2005";
  const checked_value rows[] = {
      {"API RP 2A 6.4.2, printed to 3 decimals", api_clay(50, 100), 35.355, 0.0005 / 35},
      {"API RP 2A 6.4.2, printed to 2 decimals", api_clay(60, 150), 47.43, 0.005 / 47},
      {api, api_clay(100, 100), 50.0, EXACT},
      {api, api_clay(150, 100), 67.770150, EXACT},
      {api, api_clay(200, 50), 70.710678, EXACT},
      {"alpha at most 1", api_clay(20, 150), 20.0, EXACT},
      {ngi, ngi_clay(20, 100, 30), 15.721319, EXACT},
      {ngi, ngi_clay(40, 100, 30), 27.563172, EXACT},
      {ngi, ngi_clay(100, 100, 20), 50.0, EXACT},
      {"lower bound", ngi_clay(10, 200, 15), 17.243732, EXACT},
      {"lower bound at most 0.2", ngi_clay(10, 300, 60), 60.0, EXACT},
      {"lower bound at least 0.05", ngi_clay(10, 300, 5), 15.0, EXACT},
      {"SU / SIGZ just below 0.25", ngi_clay(24.999, 100, 30), 19.650862, EXACT},
      {"SU / SIGZ 0.25", ngi_clay(25, 100, 30), 19.651648, EXACT},
      {"SU / SIGZ above 1", ngi_clay(150, 100, 20), 66.410062, EXACT},
      {"normally consolidated alpha at least 0.2", ngi_clay(50, 100, 5), 17.5, EXACT},
      {"normally consolidated alpha at most 1", ngi_clay(24, 100, 100), 24.0, EXACT},
      {"closed tip", ngi_clay(150, 100, 20, 0), 69.395126, EXACT},
      {"closed tip at most 1.25", ngi_clay(600, 100, 20, 0), 219.071505, EXACT},
      {"closed tip at least 1", ngi_clay(40, 100, 30, 0), 27.563172, EXACT},
      {"Jardine and Chow 1996, OCR given", icp_clay(100, 2, 0, 2, 25, 20), 35.326902, EXACT},
      {"OCR from SU, PLI 25", icp_clay(100, 0, 60, 2, 25, 20), 41.243760, EXACT},
      {"OCR from SU, PLI as 20", icp_clay(100, 0, 60, 2, 10, 20), 60.098617, EXACT},
      {"OCR from SU, PLI as 30", icp_clay(100, 0, 60, 2, 40, 20), 34.333482, EXACT},
      {"OCR at least 1", icp_clay(100, 0, 5, 8, 25, 8), 23.025153, EXACT},
      {"OCR at most 30, PLI beyond the table", icp_clay(100, 0, 2000, 1, 60, 8), 129.843553, EXACT},
  };
  expect_all(rows);
}

TEST_F(SkinFriction, Sand) {
  struct {
    const char* source;
    double got, tension, expected, expected_tension, tolerance;
  } rows[] = {
      {"ICP-05, open", icp_sand(200, 10000, 1.83, 0.05, 34, 28.5), tens, 30.804942, 22.595942, PI_SHORT},
      {"ICP-05, closed", icp_sand(200, 10000, 1.83, 0.05, 34, 28.5, 2), tens, 45.932101, 37.208328, PI_SHORT},
      {"ICP-05", icp_sand(150, 20000, 1.2, 0.04, 10, 29), tens, 82.682817, 60.224523, PI_SHORT},
      {"API RP 2GEO annex, 3 decimals", icp_sand(200, 10000, 1.83, 0.05, 34, 28.5, 1, 5), tens, 26.564,
       18.479, 0.0005 / 18},
      {"simplified, closed", icp_sand(200, 10000, 1.83, 0.05, 34, 28.5, 2, 5), tens, 41.589497, 28.931825,
       EXACT},
      {"simplified, near the tip", icp_sand(200, 10000, 1.83, 0.05, 3, 28.5, 1, 5), tens, 70.151392,
       48.800971, EXACT},
      {"simplified, at the tip: length ratio 4 sqrt(Ar)", icp_sand(200, 10000, 1.83, 0.05, 1, 28.5, 1, 5),
       tens, 76.872464, 53.476499, EXACT},
      {"h / R at least 8", icp_sand(200, 10000, 1.83, 0.05, 1, 28.5), tens, 80.497916, 58.374881, EXACT},
      {"interface angle by grain size", icp_sand(200, 10000, 1.83, 0.05, 34, 0, 1, 4, 0.2), tens, 29.150397,
       21.382305, EXACT},
      {"at least 23 degrees", icp_sand(200, 10000, 1.83, 0.05, 34, 0, 1, 4, 2.0), tens, 24.082830, 17.665159,
       EXACT},
      {"at most 35 degrees", icp_sand(200, 10000, 1.83, 0.05, 34, 0, 1, 4, 0.001), tens, 39.726683, 29.140188,
       EXACT},
      {"stiffness ratio at least 0.02", icp_sand(100, 120000, 1.83, 0.05, 34, 28.5), tens, 454.853521,
       353.129132, EXACT},
      {"NGI-05, open", ngi_sand(100, 0.6, 15, 30), tens, 42.012803, 32.317541, EXACT},
      {"NGI-05, closed", ngi_sand(100, 0.6, 15, 30, 2), tens, 67.220485, 51.708065, EXACT},
      {"NGI-05, material 2", ngi_sand(100, 0.6, 15, 30, 1, 2), tens, 50.415364, 38.781049, EXACT},
      {"NGI-05, at least 0.1 of the stress", ngi_sand(400, 0.05, 30, 30), tens, 40, 40, EXACT},
      {"NGI-05, at the sea floor", ngi_sand(100, 0.6, 0, 30), tens, 10, 10, EXACT},
      {"NGI-05, below the tip as at the tip", ngi_sand(100, 0.6, 15, 10), tens, 84.025606, 64.635082, EXACT},
      {"API, open", api_sand(100, 35), tens, 46.187974, 46.187974, EXACT},
      {"API, closed", api_sand(100, 35, 2), tens, 57.734968, 57.734968, EXACT},
      {"API, 10 degrees as 20", api_sand(100, 10), tens, 21.435916, 21.435916, EXACT},
      {"API, 20 degrees", api_sand(100, 20), tens, 21.435916, 21.435916, EXACT},
      {"API, 45 degrees as 40", api_sand(100, 45), tens, 56.016542, 56.016542, EXACT},
      {"API limit, lowest", api_sand(1000, 15), tens, 48, 48, EXACT},
      {"API limit", api_sand(1000, 30), tens, 81.5, 81.5, EXACT},
      {"API limit, greatest", api_sand(1000, 45), tens, 115, 115, EXACT},
  };
  for (const auto& row : rows) {
    EXPECT_NEAR(row.got, row.expected, row.expected * row.tolerance) << row.source;
    EXPECT_NEAR(row.tension, row.expected_tension, row.expected_tension * row.tolerance) << row.source;
  }
}

TEST_F(SkinFriction, TheLimitAndTheLevelsFollowTheRun) {
  cmn.ATMPRS = 202.6;
  EXPECT_NEAR(api_sand(1000, 30), 163.0, 163 * EXACT);
  cmn.ATMPRS = 0;
  EXPECT_NEAR(api_sand(1000, 30), 81.5, 81.5 * EXACT) << "without an atmosphere the limit is in kPa";
  cmn.ZSEAFL = 100;
  cmn.SCRGEN = 2;
  EXPECT_NEAR(ngi_sand(100, 0.6, 117, 132), 42.012803, EXACT * 42) << "levels from general scour";
}

TEST_F(SkinFriction, Codes) {
  const auto code = [&](double) { return std::exchange(IERR, 0); };
  const std::pair<int, int> rows[] = {
      {code(api_clay(1, 0)), 1},
      {code(api_clay(0, 0)), 2},
      {code(api_sand(0, 30)), 1},
      {code(api_sand(0, 9.99)), 2},
      {code(ngi_sand(0, 0.5, 1, 2)), 1},
      {code(ngi_sand(1, 2.0, 1, 2)), 0},
      {code(ngi_sand(0, 2.01, 1, 2)), 2},
      {code(ngi_sand(1, -0.01, 1, 2)), 2},
      {code(ngi_clay(1, 0, 1)), 1},
      {code(ngi_clay(1, 0, 0)), 2},
      {code(ngi_clay(0, 0, 0)), 3},
      {code(ngi_clay(0, 1, 1, -1)), 4},
      {code(ngi_clay(1, 1, 1, 2)), 5},
      {code(icp_clay(0, 1, 1, 1, 1, 8)), 1},
      {code(icp_clay(0, 1, 1, 1, 1, 7.98)), 2},
      {code(icp_clay(1, 1, 1, 1, 1, 7.99)), 0},
      {code(icp_clay(1, 1, 1, 1, 0.09, 7.98)), 3},
      {code(icp_clay(1, 0.09, 0, 1, 0.09, 8)), 4},
      {code(icp_clay(1, 0.1, 0, 1, 1, 8)), 4},
      {code(icp_clay(1, 0.11, 0, 1, 1, 8)), 0},
      {code(icp_clay(1, 0.09, 0, 0.89, 1, 8)), 5},
      {code(icp_sand(1, 1, 1, 0.1, 1, 1, 1, 3)), -1},
      {code(icp_sand(1, 1, 1, 0.1, 1, 1, 1, 6)), -2},
      {code(icp_sand(0, 1, 1, 0.1, 1, 1, 1, 6)), 1},
      {code(icp_sand(0, 0, 1, 0.1, 1, 1)), 2},
      {code(icp_sand(1, 0, 1, 0.1, -1, 1)), 3},
      {code(icp_sand(1, 1, 0.019, 0.005, -1, 1)), 4},
      {code(icp_sand(1, 1, 0.019, 0.0009, 1, 1)), 5},
      {code(icp_sand(1, 1, 1, 0.0009, 1, 0)), 6},
      {code(icp_sand(1, 1, 1, 0.1, 1, 0, 3)), 7},
      {code(icp_sand(1, 1, 1, 0.51, 1, 0, 3)), 8},
      {code(icp_sand(1, 1, 1, 0.5, 1, 1)), 0},
  };
  int row = 0;
  for (const auto& [got, expected] : rows) EXPECT_EQ(got, expected) << "row " << ++row;
}

TEST_F(SkinFriction, TracesGoWhereTheyAreAskedFor) {
  API84SS(cmn, 100, 35, 1, comp, tens, IERR = 20);
  EXPECT_EQ(IERR, 0);
  API87SC(cmn, 100, 50, comp, IERR = 20);
  ICP05SS(cmn, 4, 150, 20000, 10, 0.6, 0.04, 29, 0, 1, comp, tens, IERR = 20);
  NGI05SC(cmn, 100, 40, 30, 1, comp, IERR = 20);
  NGI05SS(cmn, 100, 0.6, 30, 15, 1, comp, tens, IERR = 20);
  EXPECT_EQ(printed(20), R"(
 Routine API84SS trace print
   SIGZ       PHI   IOC   TAUCMP     TAUTNS
  1.000E+02   35.0   1   4.619E+01  4.619E+01

 Routine API87SC trace print
   SIGZ         SU         TAUSKN
  1.000E+02  5.000E+01  3.536E+01

 Routine ICP05SS trace print
   SIGZ       QCPT       DISTH      RAD        WALL       DELTAF     D50
  1.500E+02  2.000E+04  1.000E+01  6.000E-01  4.000E-02  2.900E+01  0.000E+00
   IDOPCL     TAUCMP     TAUTNS
     1         82.683    60.224

 SR/NGI05SC trace print
   SIGZ    SU     PLI   IOPEN    TAUSKN  IERR
  100.0   40.0   30.0    1       27.6     0

 Routine NGI05SS trace print
   SIGZ       DR         ZTIP       ZNOW     IDOPCL  TAUCMP       TAUTNS 
  1.000E+02  6.000E-01  3.000E+01  1.500E+01   1    4.201E+01    3.232E+01
)");
}

TEST_F(SkinFriction, IcpClayAlwaysTracesOnTheListingAndNgiClayOnlyItsErrors) {
  icp_clay(0, 2, 0, 2, 25, 20);
  EXPECT_EQ(printed(16), "") << "a failed check prints nothing";
  icp_clay(100, 2, 0, 2, 25, 20);
  EXPECT_EQ(printed(16), R"(
 Routine ICP96SC trace print
   SIGZ       OCR        SUCMP      ST         PLI        RAT        TAUSKN
  1.000E+02  2.000E+00  0.000E+00  2.000E+00  2.500E+01  2.000E+01  3.533E+01
)");
  ngi_clay(40, 100, 30);
  EXPECT_EQ(printed(13) + printed(18), "");
  ngi_clay(40, 100, 30, 2);
  EXPECT_EQ(printed(13), R"(
 SR/NGI05SC trace print
   SIGZ    SU     PLI   IOPEN    TAUSKN  IERR
  100.0   40.0   30.0    2        0.0     5
)");
  EXPECT_EQ(printed(18), "\n **** SR/NGI05SC error  IERR=    5\n");
}

}  // namespace
}  // namespace tervak
