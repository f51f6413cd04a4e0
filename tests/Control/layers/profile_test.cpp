// Stress, loads, strength and depth of the layers, in both revisions, worked by hand.

#include <string>
#include <tuple>
#include <vector>

#include "Control/layers/BUILD.hpp"
#include "Control/layers/build5.hpp"
#include "support/scratch_run.hpp"

namespace tervak {
namespace {

class LayerProfile : public scratch_run {
 protected:
  /// Layers by their bottoms, sea floor and water at 0, weights 18, 20, 19 ... of which 10 is lifted by
  /// water.
  void make(const vector1<double>& bottoms, int MIDBOT = 1) {
    const double weights[] = {18, 20, 19};
    cmn.DIAM = {1.0};
    cmn.NUMDIA = 1;
    cmn.NUMLAY = cmn.NUMTYP = bottoms.size();
    ResetLayerLists(cmn);
    allocate_input_tables(cmn);
    allocate_layer_tables(cmn);
    cmn.GAMPWP = 10;
    cmn.MIDBOT = MIDBOT;
    cmn.ZBOTM = bottoms;
    for (int i = 1; i <= cmn.NUMLAY; ++i) {
      cmn.LAYCOD.append({i, 0, 0, 0});
      cmn.GAMTOT(i) = weights[i - 1];
      cmn.ZLAY.append(MIDBOT == 1 ? (bottoms(i) + (i == 1 ? 0 : bottoms(i - 1))) / 2 : bottoms(i));
    }
  }
  static void expect(const char* what, const vector1<double>& got, const std::vector<double>& expected) {
    int i = 0;
    for (const double value : expected) EXPECT_NEAR(got(++i), value, 1e-5) << what << " " << i;
  }
};

TEST_F(LayerProfile, StressAndDepthWithWaterAndScour) {
  const struct {
    const char* what;
    vector1<double> bottoms;
    int MIDBOT;
    double ZPWP, SCRGEN, SCRLOC, SCRSLP;
    std::vector<double> GAMEFF, SIGZRES, DEPTH;
  } rows[] = {
      // clang-format off
      {"under water", {4, 10}, 1, 0, 0, 0, 0, {8, 10}, {16, 62}, {2, 7}},
      {"water from within layer 1", {4, 10}, 1, 1, 0, 0, 0, {10.5, 10}, {26, 72}, {}},
      {"water from within layer 2", {4, 10}, 1, 8, 0, 0, 0, {18, 100 / 6.0}, {36, 132}, {}},
      {"dry", {4, 10}, 1, 20, 0, 0, 0, {18, 20}, {36, 132}, {}},
      {"levels at bottoms", {4, 10}, 2, 0, 0, 0, 0, {8, 10}, {32, 92}, {4, 10}},
      // Relief length 2 m; depth: twice the plain depth of 1, the plain depth of 5 and 2.
      {"one layer scoured", {3, 5, 11}, 1, 0, 1, 3, 45, {}, {0, 17.091577, 62.143901}, {-1.5, 2, 7}},
      // Lost: 1 m at 8 and 1 m at 10; level 3.5 from 3 at 10.
      {"two layers scoured", {2, 5, 11}, 1, 0, 1, 3, 45, {}, {0, 5 + 18 * 0.2538255, 47 + 18 * 0.9464938}, {-2, 1, 7}},
      {"relief length a thousandth of the diameter", {3, 5, 11}, 1, 0, 1, 3, 89.999, {}, {0, 26, 63}, {-1.5, 3, 7}},
      {"no slope, no relief", {3, 5, 11}, 1, 0, 1, 3, 0, {}, {0, 10, 47}, {-1.5, 1, 5}},
      {"general scour only", {3, 5, 11}, 1, 0, 3, 3, 0, {}, {0, 10, 47}, {-1.5, 1, 5}},
      // clang-format on
  };
  for (const auto& [what, bottoms, MIDBOT, ZPWP, SCRGEN, SCRLOC, SCRSLP, GAMEFF, SIGZRES, DEPTH] : rows) {
    make(bottoms, MIDBOT);
    std::tie(cmn.ZPWP, cmn.SCRGEN, cmn.SCRLOC, cmn.SCRSLP) = std::tie(ZPWP, SCRGEN, SCRLOC, SCRSLP);
    BUILD5(cmn, 2);
    expect(what, cmn.GAMEFF, GAMEFF);
    expect(what, cmn.SIGZRES, SIGZRES);
    expect(what, cmn.DEPTH, DEPTH);
  }
  EXPECT_EQ(printed(18), "");
}

TEST_F(LayerProfile, SurfaceLoads) {
  const struct {
    const char* source;
    double SIGSUR, SIGEMB, AEMB, BEMB, SIGCIR, RADCIR, FRCPNT, FRCDST, DSIGZ;
  } rows[] = {
      {"uniform", 7, 0, 0, 0, 0, 0, 0, 0, 7},
      {"Boussinesq, 4 m below 1000 kN 3 m away", 0, 0, 0, 0, 0, 0, 1000, 3, 9.778480},
      {"Boussinesq, circle of 3 m, 4 m down: 1 - 0.8^3", 0, 0, 0, 0, 100, 3, 0, 0, 48.8},
      {"embankment, toe 1 m away, slope 3 m", 0, 100, 3, 1, 0, 0, 0, 0, 19.265971},
      {"embankment, pile at the toe", 0, 100, 4, 0, 0, 0, 0, 0, 25},
      {"embankment, pile inside", 0, 100, 4, -8, 0, 0, 0, 0, 95.483276},
      {"embankment, vertical edge at the pile", 0, 100, 0, 0, 0, 0, 0, 0, 50},
      {"all", 7, 100, 3, 1, 100, 3, 1000, 3, 84.844450},
  };
  cmn.SCRGEN = 1;
  cmn.SCRLOC = 3;
  for (const auto& r : rows) {
    make({3.0, 7.0});
    std::tie(cmn.SIGSUR, cmn.SIGEMB, cmn.AEMB, cmn.BEMB, cmn.SIGCIR, cmn.RADCIR) =
        std::tie(r.SIGSUR, r.SIGEMB, r.AEMB, r.BEMB, r.SIGCIR, r.RADCIR);
    cmn.NUMFRC = r.FRCPNT > 0 ? 2 : 0;  // in two halves
    cmn.FRCPNT = {r.FRCPNT / 2, r.FRCPNT / 2, 0};
    cmn.FRCDST = {r.FRCDST, -r.FRCDST, 0};
    BUILD5(cmn, 2);
    expect(r.source, cmn.DSIGZ, {0, r.DSIGZ});
    expect(r.source, cmn.SIGZRES, {0, 20 + r.DSIGZ});
  }
}

TEST_F(LayerProfile, StrengthAndClayList) {
  cmn.SFTPHI = cmn.SFSU = 1.25;
  cmn.UNITM = 2;
  make({4.0, 10.0, 12.0});
  cmn.SU0 = {10, 0, 50};
  cmn.SU100 = {110, 0, 50};  // at Z of 100 m, which is 200 here
  cmn.PHI = {0, 35, 0};
  BUILD5(cmn, 2);
  expect("SURED", cmn.SURED, {8.8, 0, 40});
  expect("PHIR", cmn.PHIR, {0, 29.256068, 0});
  EXPECT_EQ(cmn.NUMCLY, 2);
  expect("SUCLAY", cmn.SUCLAY, {8.8, 40});
  expect("DPCLAY", cmn.DPCLAY, {2, 11});
  expect("ZLCLAY", cmn.ZLCLAY, {2, 11});
}

TEST_F(LayerProfile, FailuresAndWarningsNameTheRoutine) {
  for (const std::string name : {"BUILD5", "BUILD"}) {
    const auto build = [&](double GAMTOT, double SU0, double PHI) {
      cmn.units.close_unit(18, nullptr, true);
      cmn.IERR = 0;
      make({4.0});
      cmn.GAMTOT(1) = GAMTOT;
      cmn.SU0(1) = SU0;
      cmn.PHI(1) = PHI;
      name == "BUILD5" ? BUILD5(cmn, 2) : BUILD(cmn);
      return printed(18);
    };
    const std::string warning = "\n WARNING FROM SR/" + name + " : LAY,GAMEFF=    1     0.000\n",
                      error = "\n **** SR/" + name + " : ",
                      negative = "NEGATIVE SU VALUE CALCULATED\n LAY,TYP,SU0,SU100,ZLAY,SU=    1    1";
    EXPECT_EQ(build(18, -1.0E-11, 30), "");
    EXPECT_NE(build(18, -1.1E-10, 30), "");
    EXPECT_EQ(build(18, -1, 0), error + negative + "    -1.000     0.000     2.000    -0.980\n");
    EXPECT_EQ(cmn.IERR, 1);
    EXPECT_EQ(cmn.DEPTH(1), 0.0) << "later steps are left undone";
    EXPECT_EQ(build(18, 1, 30),
              error + "BOTH PHI AND SU ARE NON-ZERO\n LAY,PHI,SU=    1    30.000     0.980\n");
    EXPECT_EQ(cmn.IERR, 1);
    EXPECT_EQ(build(10, 0, 30), warning);
    EXPECT_EQ(cmn.IERR, 0);
    EXPECT_EQ(build(10 + 2.0E-12, 0, 30), name == "BUILD5" ? "" : warning);
    EXPECT_EQ(build(10 + 2.0E-10, 0, 30), "");
  }
}

TEST_F(LayerProfile, Revision4LevelsAndShearModuli) {
  cmn.NUMTQZ = 8;
  make({4.0, 10.0, 12.0});
  cmn.ZLAY.clear();
  cmn.ATMPRS = 100;
  cmn.SU0 = cmn.SU100 = {20, 0, 20};
  cmn.PHI = {0, 35, 0};
  cmn.OCR = {0, 0, 2};
  cmn.ZTQZ = {0, 4, 4.1, 10, 11, 50, 3, 5};
  cmn.G0SOIL = {0, -2, 0, 77, 0, -0.5, 1.0E-11, -1};
  cmn.POIS = {0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.5};
  BUILD(cmn);
  expect("levels in the middle", cmn.ZLAY, {2, 7, 11});
  // Clay 1: 4 * 20 / 16 = 5, so 300 - 85 * 2 = 130. Sand: 21205.5372 at 62 kPa. Clay 3: 300 - 85 = 215.
  expect("G0SOIL", cmn.G0SOIL, {2600, 5200, 21205.537190, 77, 4300, 2150, 2600, 21205.537190 * 1.3 / 1.5});

  cmn.SCRGEN = cmn.SCRLOC = 8;  // no stress: clay 1 counts as OCR 10, sand keeps EPS
  make({4.0, 10.0});
  cmn.SU0 = cmn.SU100 = {20, 0};
  cmn.PHI = {0, 35};
  cmn.ZTQZ = {1, 5};
  cmn.NUMTQZ = 2;
  BUILD(cmn);
  EXPECT_NEAR(cmn.G0SOIL(1), 1000, 1e-9);
  EXPECT_EQ(cmn.G0SOIL(2), cmn.EPS);
}

}  // namespace
}  // namespace tervak
