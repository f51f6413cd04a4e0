// Which method runs for which layer, what it is given, and what its failure prints.

#include "Control/axial/AxialCapacityControl.hpp"
#include "support/scratch_run.hpp"

namespace tervak {
namespace {

constexpr double PI_SHORT = 3e-5;  // the methods have pi as 3.14159

enum soil { SAND, CLAY };

class AxialCapacity : public scratch_run {
 protected:
  /// One layer halfway down an open pile, and what `change` makes of it.
  void make(const char* method, soil kind, void (*change)(common&)) {
    cmn.NUMDIA = cmn.NUMLAY = cmn.NUMLAYM = cmn.MATPIL = 1;
    ResetLayerLists(cmn);
    allocate_layer_tables(cmn);
    cmn.LAYCOD.append({1, 0, 0, 0});
    cmn.METHOD[0].assign(method);
    cmn.ATMPRS = 101.3, cmn.SFTPHI = 1, cmn.DIAMP = 1.2, cmn.WALL = 0.04, cmn.ZTIP = 30;
    cmn.ZNOW(1) = 15, cmn.SIGZ(1) = 100;
    (kind == SAND ? cmn.PHIL : cmn.SUCMP)(1) = kind == SAND ? 35 : 50;
    cmn.DR(1) = 0.6, cmn.CPTTIP(1) = 25000, cmn.CPTAVR(1) = 20000;
    cmn.PLI(1) = 30, cmn.ST(1) = 2, cmn.DELTAF(1) = 29;
    change(cmn);
  }
};

// The golden decks hold the open pile.
TEST_F(AxialCapacity, Values) {
  const struct {
    const char* what;
    const char* method;
    soil kind;
    void (*change)(common&);
    double TAUCMP, TAUTNS, QTIP;
  } rows[] = {
      {"a quarter: open", "API-93", SAND, [](common& c) { c.WALL = 0.3; }, 46.187974, 46.187974, 4000},
      {"thicker: closed", "API-93", SAND, [](common& c) { c.WALL = 0.3001; }, 57.734968, 57.734968, 4000},
      {"ICP, closed", "ICP-05", SAND, [](common& c) { c.WALL = 0.31; }, 121.86692, 98.213044, 5999.99493},
      {"ICP, closed", "ICP-05", CLAY, [](common& c) { c.WALL = 0.31; }, 31.938608, 31.938608, 16000},
      {"NGI, closed", "NGI-05", SAND, [](common& c) { c.WALL = 0.31; }, 67.220485, 51.708065, 11764.7059},
      {"at the tip", "ICP-05", SAND, [](common& c) { c.ZNOW(1) = 31; }, 185.951554, 134.532674, 3222.21950},
      {"ratio 8", "ICP-05", CLAY, [](common& c) { c.ZNOW(1) = 31; }, 40.113079, 40.113079, 8000},
      {"no cone: 9 Su", "ICP-05", CLAY, [](common& c) { c.CPTAVR(1) = 0; }, 26.021812, 26.021812, 450},
      {"half kilopascals", "API-93", SAND, [](common& c) { c.ATMPRS = 202.6; }, 46.187974, 46.187974, 4000},
      {"their limits", "API-93", SAND, [](common& c) { c.ATMPRS = 202.6, c.SIGZ(1) = 1000; }, 196.5, 196.5,
       19200},
      {"unfactored", "API-93", SAND, [](common& c) { c.SFTPHI = 1.25, c.PHIL(1) = 29.25606764; }, 46.187974,
       46.187974, 4000},
      {"all given", "NONE", SAND, [](common& c) { c.TAUCMP(1) = 5, c.QTIP(1) = 7; }, 5, 0, 7},
      {"friction given", "API-93", SAND, [](common& c) { c.TAUTNS(1) = 5; }, 0, 5, 4000},
      {"clay tip, any label", "NONE", CLAY, [](common& c) { c.TAUCMP(1) = 5; }, 5, 0, 450},
      {"above the scour", "NONE", SAND, [](common& c) { c.SIGZ(1) = 0; }, 0, 0, 0},
      {"no label", "", SAND, [](common&) {}, 0, 0, 0},
  };
  for (const auto& r : rows) {
    make(r.method, r.kind, r.change);
    R5AXCAP(cmn);
    EXPECT_NEAR(cmn.TAUCMP(1), r.TAUCMP, PI_SHORT * r.TAUCMP) << r.what;
    EXPECT_NEAR(cmn.TAUTNS(1), r.TAUTNS, PI_SHORT * r.TAUTNS) << r.what;
    EXPECT_NEAR(cmn.QTIP(1), r.QTIP, PI_SHORT * r.QTIP) << r.what;
  }
}

const std::string TERMINATED = "\n **** Error termination by SR/R5AXCAP\n";

TEST_F(AxialCapacity, FailuresPrintOnLogAndListingAndEndTheRun) {
  const auto tip_codes = [](const std::string& diameter) {
    return " 1,2 = MCSAND error   3 = SIGZ < EPS   4 = Dr < 0.0\n 5 = Dr > 1.5   6-9 = CPT qc problem  10 = " +
           diameter +
           " < 0.05m\n 11 = DIAM > 10m   12 = WALL < 1mm   13 = DIAINS < 0.0\n"
           " 14,15 = Open/closed tip code error\n";
  };
  const struct {
    const char* method;
    soil kind;
    void (*change)(common&);
    std::string routine;
    int code;  ///< 0: the method is not known
    std::string codes;
  } rows[] = {
      {"API-93", SAND, [](common& c) { c.PHIL(1) = 5; }, "API84SS", 2,
       " 1 = SIGZ < EPS   2 = PHI < 10 degr   3 = Open/closed code error\n"},
      {"API-93", CLAY, [](common& c) { c.SUCMP(1) = 0; }, "API87SC", 2, " 1 = SIGZ < EPS   2 = Su < EPS\n"},
      {"API-93", SAND, [](common& c) { c.PHIL(1) = 0.5, c.TAUCMP(1) = 1; }, "APITipResistance", 4,
       " 1,2 = MCSAND error   3 = SIGZ < EPS   4 = PHI < 1 degree\n"},
      {"ICP-05", SAND, [](common& c) { c.CPTTIP(1) = 0; }, "ICP05SS", 2,
       " -1 or -2 = MCSAND error   1 = SIGZ < EPS   2 = QCPT < EPS\n"
       " 3 = DISTH < -EPS   4 = Radius < 0.01m   5 = Wall < 1mm\n"
       " 6 = DELTAF < EPS and D50 < EPS  7 = Open/closed code error\n 8 = Radius-Wall is negative\n"},
      {"ICP-05", CLAY, [](common& c) { c.PLI(1) = 0; }, "ICP96SC", 3,
       " 1 = SIGZ < EPS   2 = H/R < 8   3 = Ip < 0.1 %\n"
       " 4 = OCR < 0.1 and SuCMP < EPS  5 = St < 0.9\n 100+N = SR/INTPOL error\n"},
      {"ICP-05", SAND, [](common& c) { c.CPTAVR(1) = 0; }, "ICPXXTS", 8, tip_codes("DIAm")},
      {"NGI-05", SAND, [](common& c) { c.DR(1) = 2.1; }, "NGI05SS", 2,
       " 1 = SIGZ < EPS   2 = Dr < 0.1 or Dr > 2.0\n"
       " 3 = Present layer is below pile tip\n 4 = Open/closed pile tip code error\n"},
      {"NGI-05", CLAY, [](common& c) { c.WALL = 0.31; }, "NGI05SC", 5,
       " 1 = SIGZ < EPS   2 = Ip < EPS   3 = Su < EPS\n 4 or 5 = Open/closed pile tip code error\n"},
      {"NGI-05", SAND, [](common& c) { c.DR(1) = 1.6; }, "NGI05TS", 5, tip_codes("DIAM")},
      {"API-9", SAND, [](common& c) { c.QTIP(1) = 5; }, "", 0, ""},
      {"API-9", SAND, [](common& c) { c.TAUCMP(1) = 1; }, "", 0, ""},
      {"API-9", CLAY, [](common& c) { c.QTIP(1) = 5; }, "", 0, ""},
  };
  for (const auto& r : rows) {
    for (const int unit : {cmn.NFLOG, cmn.NFLIS}) cmn.units.close_unit(unit, nullptr, true);
    make(r.method, r.kind, r.change);
    EXPECT_NE(stop_of([this] { R5AXCAP(cmn); }), "");
    const std::string message =
        r.code == 0 ? "\n **** SR/R5AXCAP : Unknown calculation method\n Main layer, method =   1  API-9 \n"
                    : "\n **** SR/R5AXCAP : Error from SR/" + r.routine + ". Layer,IERR=    1    " +
                          std::to_string(r.code) + "\n\n Error codes from this routine are:\n" + r.codes;
    EXPECT_TRUE(printed(18).ends_with(message + TERMINATED)) << printed(18);
    EXPECT_TRUE(printed(16).ends_with(message)) << printed(16);
  }
}

// A full section that beats the plug is refused by API-93 and NGI-05: 12000 kPa against 1000000 kN; 14000 and
// 14700 kPa against 500000 * (15 * 0.2 / 9.92 + 1) + 500000 kN.
TEST_F(AxialCapacity, ATipThatDoesNotPlugIsRefused) {
  const auto stopped = [this] { return !stop_of([this] { R5AXCAP(cmn); }).empty(); };
  make("NGI-05", SAND, [](common& c) { c.DIAMP = 10, c.DR(1) = 0, c.CPTTIP(1) = 1, c.CPTAVR(1) = 20000; });
  EXPECT_FALSE(stopped());
  make("NGI-05", SAND, [](common& c) { c.DIAMP = 10, c.DR(1) = 0, c.CPTTIP(1) = 1, c.CPTAVR(1) = 21000; });
  EXPECT_TRUE(stopped());
  make("API-93", SAND, [](common& c) { c.SIGZ(1) = 1e4, c.PHIL(1) = 40, c.DIAMP = 12; });
  EXPECT_TRUE(stopped());
  std::string log;
  for (const char* routine : {"NGI05TS", "APITipResistance"})
    log += std::string("\n **** SR/R5AXCAP : Tip code error in SR/") + routine +
           "\n Layer,ITIP=    1    1\n" + TERMINATED;
  EXPECT_EQ(printed(18), log);
  EXPECT_EQ(printed(16), "") << "the listing gets messages of methods only";
}

}  // namespace
}  // namespace tervak
