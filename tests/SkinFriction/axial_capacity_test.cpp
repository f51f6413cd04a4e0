// Which method runs for which layer, what it is given, and what its failure prints.

#include "Control/AxialCapacityControl.hpp"
#include "support/scratch_run.hpp"

namespace tervak {
namespace {

constexpr double PI_SHORT = 3e-5;  // the methods have pi as 3.14159

class AxialCapacity : public scratch_run {
 protected:
  enum soil { SAND, CLAY };

  void make(const char* method, soil kind) {
    cmn.NUMDIA = cmn.NUMLAY = cmn.NUMLAYM = cmn.MATPIL = 1;
    ResetLayerLists(cmn);
    allocate_layer_tables(cmn);
    cmn.LAYCOD.append({1, 0, 0, 0});
    cmn.METHOD[0].assign(method);
    cmn.DIAMP = 1.2;
    cmn.WALL = 0.04;
    cmn.ZTIP = 30;
    cmn.ZNOW(1) = 15;
    cmn.SIGZ(1) = 100;
    if (kind == SAND) cmn.PHIL(1) = 35;
    if (kind == CLAY) cmn.SUCMP(1) = 50;
    cmn.DR(1) = 0.6;
    cmn.CPTTIP(1) = 25000;
    cmn.CPTAVR(1) = 20000;
    cmn.PLI(1) = 30;
    cmn.ST(1) = 2;
    cmn.DELTAF(1) = 29;
  }
  void expect(const char* what, double TAUCMP, double TAUTNS, double QTIP) {
    R5AXCAP(cmn);
    const checked_value rows[] = {{what, cmn.TAUCMP(1), TAUCMP, PI_SHORT},
                                  {what, cmn.TAUTNS(1), TAUTNS, PI_SHORT},
                                  {what, cmn.QTIP(1), QTIP, PI_SHORT}};
    expect_all(rows);
  }
};

TEST_F(AxialCapacity, TheLabelChoosesTheMethods) {
  const struct {
    const char* what;
    const char* method;
    soil kind;
    double WALL, TAUCMP, TAUTNS, QTIP;
  } rows[] = {
      {"API sand", "API-93", SAND, 0.04, 46.187974, 46.187974, 4000},
      {"API sand, wall a quarter of the diameter", "API-93", SAND, 0.3, 46.187974, 46.187974, 4000},
      {"API sand, thicker: closed", "API-93", SAND, 0.3001, 57.734968, 57.734968, 4000},
      {"API clay, SU 50: 450 published", "API-93", CLAY, 0.04, 35.355339, 35.355339, 450},
      {"ICP sand, coring", "ICP-05", SAND, 0.04, 83.730882, 60.933791, 3222.21950},
      {"ICP sand, closed", "ICP-05", SAND, 0.31, 121.866920, 98.213044, 5999.99493},
      {"ICP clay", "ICP-05", CLAY, 0.04, 26.021812, 26.021812, 8000},
      {"ICP clay, closed", "ICP-05", CLAY, 0.31, 31.938608, 31.938608, 16000},
      {"NGI sand", "NGI-05", SAND, 0.04, 42.012803, 32.317541, 6730.7692},
      {"NGI sand, closed", "NGI-05", SAND, 0.31, 67.220485, 51.708065, 11764.7059},
      {"NGI clay", "NGI-05", CLAY, 0.04, 32.151648, 32.151648, 450},
      {"none", "", SAND, 0.04, 0, 0, 0},
  };
  for (const auto& r : rows) {
    make(r.method, r.kind);
    cmn.WALL = r.WALL;
    expect(r.what, r.TAUCMP, r.TAUTNS, r.QTIP);
  }
}

TEST_F(AxialCapacity, TheMethodsTakeUnfactoredStrength) {
  cmn.SFTPHI = cmn.SFSU = 1.25;
  make("API-93", SAND);
  cmn.PHIL(1) = 29.25606764;
  expect("sand", 46.187974, 46.187974, 4000);
  make("API-93", CLAY);
  cmn.SUCMP(1) = 40;
  expect("clay", 35.355339, 35.355339, 450);
}

TEST_F(AxialCapacity, TheMethodsKilopascalsFollowTheAtmosphere) {
  cmn.ATMPRS = 202.6;  // tip limit 9600 kPa in units of half a kPa
  make("API-93", SAND);
  cmn.SIGZ(1) = 1000;
  expect("limits", 196.5, 196.5, 19200);
  make("API-93", SAND);
  expect("below the limits", 46.187974, 46.187974, 4000);
}

TEST_F(AxialCapacity, WhatIsGivenStays) {
  make("NONE", SAND);
  cmn.TAUCMP(1) = 5;
  cmn.QTIP(1) = 7;
  expect("any label", 5, 0, 7);
  make("API-93", SAND);
  cmn.TAUTNS(1) = 5;
  expect("friction given", 0, 5, 4000);
  make("API-93", SAND);
  cmn.QTIP(1) = 7;
  expect("tip given", 46.187974, 46.187974, 7);
  make("NONE", SAND);
  cmn.SIGZ(1) = 0;
  expect("above the scour", 0, 0, 0);
  make("NONE", CLAY);
  cmn.TAUCMP(1) = 5;
  expect("clay tip, any label", 5, 0, 450);
}

TEST_F(AxialCapacity, BelowTheTipCountsAsAtTheTip) {
  make("NGI-05", SAND);
  cmn.ZNOW(1) = 31;
  expect("NGI", 84.025606, 64.635082, 6730.7692);
  make("ICP-05", SAND);
  cmn.ZNOW(1) = 31;
  expect("ICP sand", 185.951554, 134.532674, 3222.21950);
  make("ICP-05", CLAY);
  cmn.ZNOW(1) = 31;
  expect("ICP: ratio 8", 40.113079, 40.113079, 8000);
}

TEST_F(AxialCapacity, WithoutConeResistanceIcpClayFallsBackOnStrength) {
  make("ICP-05", CLAY);
  cmn.CPTAVR(1) = 0;
  expect("ICP clay", 26.021812, 26.021812, 450);
}

const char* const TERMINATED = "\n **** Error termination by SR/R5AXCAP\n";

TEST_F(AxialCapacity, FailuresPrintOnLogAndListingAndEndTheRun) {
  const char* tip_codes =
      "\n Error codes from this routine are:\n 1,2 = MCSAND error   3 = SIGZ < EPS   4 = Dr < 0.0\n"
      " 5 = Dr > 1.5   6-9 = CPT qc problem  10 = DIAM < 0.05m\n"
      " 11 = DIAM > 10m   12 = WALL < 1mm   13 = DIAINS < 0.0\n 14,15 = Open/closed tip code error\n";
  std::string icp_tip_codes = tip_codes;
  icp_tip_codes.replace(icp_tip_codes.find("DIAM <"), 4, "DIAm");
  const struct {
    const char* method;
    soil kind;
    vector1<double> common::*field;  ///< set to `value` in layer 1
    double value;
    double TAUCMP, WALL;
    std::string by_method, message;  ///< line of the method itself on the log; lines on log and listing
  } rows[] = {
      {"API-93", SAND, &common::PHIL, 5, 0, 0.04, "",
       "\n **** SR/R5AXCAP : Error from SR/API84SS. Layer,IERR=    1    2\n"
       "\n Error codes from this routine are:\n 1 = SIGZ < EPS   2 = PHI < 10 degr   3 = Open/closed code error\n"},
      {"API-93", CLAY, &common::SUCMP, 0, 0, 0.04, "",
       "\n **** SR/R5AXCAP : Error from SR/API87SC. Layer,IERR=    1    2\n"
       "\n Error codes from this routine are:\n 1 = SIGZ < EPS   2 = Su < EPS\n"},
      {"API-93", SAND, &common::PHIL, 0.5, 1, 0.04, "",
       "\n **** SR/R5AXCAP : Error from SR/APITipResistance. Layer,IERR=    1    4\n"
       "\n Error codes from this routine are:\n 1,2 = MCSAND error   3 = SIGZ < EPS   4 = PHI < 1 degree\n"},
      {"ICP-05", SAND, &common::CPTTIP, 0, 0, 0.04, "",
       "\n **** SR/R5AXCAP : Error from SR/ICP05SS. Layer,IERR=    1    2\n"
       "\n Error codes from this routine are:\n -1 or -2 = MCSAND error   1 = SIGZ < EPS   2 = QCPT < EPS\n"
       " 3 = DISTH < -EPS   4 = Radius < 0.01m   5 = Wall < 1mm\n"
       " 6 = DELTAF < EPS and D50 < EPS  7 = Open/closed code error\n 8 = Radius-Wall is negative\n"},
      {"ICP-05", CLAY, &common::PLI, 0, 0, 0.04, "",
       "\n **** SR/R5AXCAP : Error from SR/ICP96SC. Layer,IERR=    1    3\n"
       "\n Error codes from this routine are:\n 1 = SIGZ < EPS   2 = H/R < 8   3 = Ip < 0.1 %\n"
       " 4 = OCR < 0.1 and SuCMP < EPS  5 = St < 0.9\n 100+N = SR/INTPOL error\n"},
      {"ICP-05", SAND, &common::CPTAVR, 0, 1, 0.04, "\n **** SR/ICPXXTS ERROR   IERR =     8\n",
       "\n **** SR/R5AXCAP : Error from SR/ICPXXTS. Layer,IERR=    1    8\n" + icp_tip_codes},
      {"NGI-05", SAND, &common::DR, 2.1, 0, 0.04, "",
       "\n **** SR/R5AXCAP : Error from SR/NGI05SS. Layer,IERR=    1    2\n"
       "\n Error codes from this routine are:\n 1 = SIGZ < EPS   2 = Dr < 0.1 or Dr > 2.0\n"
       " 3 = Present layer is below pile tip\n 4 = Open/closed pile tip code error\n"},
      {"NGI-05", CLAY, &common::PLI, 30, 0, 0.31, "\n **** SR/NGI05SC error  IERR=    5\n",
       "\n **** SR/R5AXCAP : Error from SR/NGI05SC. Layer,IERR=    1    5\n"
       "\n Error codes from this routine are:\n 1 = SIGZ < EPS   2 = Ip < EPS   3 = Su < EPS\n"
       " 4 or 5 = Open/closed pile tip code error\n"},
      {"NGI-05", SAND, &common::DR, 1.6, 1, 0.04, "\n **** SR/NGI05TS ERROR   IERR =     5\n",
       "\n **** SR/R5AXCAP : Error from SR/NGI05TS. Layer,IERR=    1    5\n" + std::string(tip_codes)},
      {"API-9", SAND, &common::DR, 0.6, 0, 0.04, "",
       "\n **** SR/R5AXCAP : Unknown calculation method\n Main layer, method =   1  API-9 \n"},
      {"API-9", SAND, &common::DR, 0.6, 1, 0.04, "",
       "\n **** SR/R5AXCAP : Unknown calculation method\n Main layer, method =   1  API-9 \n"},
      {"API-9", CLAY, &common::DR, 0.6, 0, 0.04, "",
       "\n **** SR/R5AXCAP : Unknown calculation method\n Main layer, method =   1  API-9 \n"},
  };
  for (const auto& r : rows) {
    for (const int unit : {cmn.NFLOG, cmn.NFLIS}) cmn.units.close_unit(unit, nullptr, true);
    make(r.method, r.kind);
    (cmn.*r.field)(1) = r.value;
    cmn.TAUCMP(1) = r.TAUCMP;
    cmn.WALL = r.WALL;
    EXPECT_NE(stop_of([this] { R5AXCAP(cmn); }), "");
    EXPECT_EQ(printed(18), r.by_method + r.message + TERMINATED);
    EXPECT_EQ(printed(16), r.message);
  }
}

TEST_F(AxialCapacity, ATipThatDoesNotPlugIsRefusedByApiAndNgi) {
  make("API-93", SAND);
  cmn.SIGZ(1) = 1e4;
  cmn.PHIL(1) = 40;
  cmn.DIAMP = 12;  // 12000 kPa on the full section beats the plug's 1000000 kN
  EXPECT_NE(stop_of([this] { R5AXCAP(cmn); }), "");
  EXPECT_EQ(
      printed(18),
      std::string("\n **** SR/R5AXCAP : Tip code error in SR/APITipResistance\n Layer,ITIP=    1    1\n") +
          TERMINATED);
  cmn.units.close_unit(18, nullptr, true);
  make("NGI-05", SAND);
  cmn.DIAMP = 10;
  cmn.DR(1) = 0;
  cmn.CPTTIP(1) = 1;
  cmn.CPTAVR(1) = 20000;  // 14000 kPa on the full section against 500000 * (15 * 0.2 / 9.92 + 1) + 500000 kN
  expect("just plugged", 10, 10, 14000);
  cmn.CPTAVR(1) = 21000;
  cmn.QTIP(1) = 0;
  EXPECT_NE(stop_of([this] { R5AXCAP(cmn); }), "");
  EXPECT_EQ(printed(18),
            std::string("\n **** SR/R5AXCAP : Tip code error in SR/NGI05TS\n Layer,ITIP=    1    1\n") +
                TERMINATED);
  EXPECT_EQ(printed(16), "") << "the listing gets messages of methods only";
}

}  // namespace
}  // namespace tervak
