// Soil parameters by layer: correlations, levels, averages and failures.

#include <array>
#include <vector>

#include "SkinFriction/soilInput.hpp"
#include "support/scratch_run.hpp"

namespace tervak {
namespace {

class SoilInput : public scratch_run {
 protected:
  /// Main layers by their bottoms, and layers by main layer, level and effective stress.
  void make(const vector1<double>& bottoms, const std::vector<std::array<double, 3>>& layers) {
    cmn.DIAM = {1.0};
    cmn.NUMDIA = 1;
    cmn.DIAMP = 1.0;
    cmn.NUMLAYM = cmn.NUMLAY = bottoms.size();
    ResetLayerLists(cmn);
    allocate_input_tables(cmn);
    cmn.ZMAIN = bottoms;
    for (int m = 1; m <= cmn.NUMLAYM; ++m) cmn.GOFAC(m) = 2.0;
    cmn.NUMLAY = static_cast<int>(layers.size());
    allocate_layer_tables(cmn);
    for (const auto& layer : layers) {
      cmn.LAYCOD.append({static_cast<int>(layer[0]), 0, 0, 0});
      cmn.ZLAY.append(layer[1]);
      cmn.SIGZRES(cmn.ZLAY.size()) = layer[2];
    }
  }
  void sand(int m, double CPT, double PHI, double DR) {
    cmn.CPTTOP(m) = cmn.CPTBOT(m) = CPT;
    cmn.PHIM(m) = PHI;
    cmn.DRM(m) = DR;
  }
  void clay(int m, double SU) { cmn.SUTOP(m) = cmn.SUBOT(m) = SU; }
};

TEST_F(SoilInput, SandFillsInWhatIsMissingAndKeepsWhatIsGiven) {
  const struct {
    const char* source;
    double SIGZ, CPT, PHI, DR, expected_CPT, expected_PHI, expected_DR, GSOIL;
  } rows[] = {
      // worked by hand from the correlations, atmosphere 100 kPa, factor 2 on Go
      {"cone at 100 kPa", 100, 10000, 0, 0, 10000, 35.960933, 0.605651, 56169.3697},
      {"cone at 400 kPa", 400, 10000, 0, 0, 10000, 28.545164, 0.328392, 84230.9533},
      {"all given", 400, 10000, 35, 0.5, 10000, 35, 0.5, 108422.1822},
      {"density at least 0.01", 400, 100, 0, 0, 100, 22.067950, 0.01, 62774.3165},
      {"density at most 1.1, angle 40", 400, 1e6, 0, 0, 1e6, 40, 1.1, 129928.6399},
      {"angle alone", 400, 0, 35, 0, 22105.26294, 35, 0.645684, 108422.1822},
      {"angle of 20 alone", 100, 0, 20, 0, 2255.69326, 20, 0.01, 28179.1075},
      {"density alone", 400, 0, 0, 0.6, 19719.43191, 34.070618, 0.6, 104720.7748},
      {"density alone, above 100 kPa of stress", 25, 0, 0, 0.5, 3839.37725, 35.363732, 0.5, 27473.4223},
      {"dense, angle 40", 400, 0, 0, 1.1, 68827.58029, 40, 1.1, 129928.6399},
  };
  for (const auto& r : rows) {
    make({10.0}, {{1, 5.0, r.SIGZ}});
    sand(1, r.CPT, r.PHI, r.DR);
    R5SOIL(cmn);
    const checked_value values[] = {{r.source, cmn.CPTTIP(1), r.expected_CPT, 1e-6},
                                    {r.source, cmn.PHIL(1), r.expected_PHI, 1e-6},
                                    {r.source, cmn.PHIR(1), r.expected_PHI, 1e-6},
                                    {r.source, cmn.DR(1), r.expected_DR, 2e-6},
                                    {r.source, cmn.GSOIL(1), r.GSOIL, 1e-6},
                                    {r.source, cmn.POISL(1), 0.3, 1e-7},
                                    {r.source, cmn.DELTAF(1), 29, 0},
                                    {r.source, cmn.OCRL(1) * cmn.ST(1), 1, 0}};
    expect_all(values);
  }
}

TEST_F(SoilInput, ClayGetsItsHistoryFromTheStrengthRatio) {
  const struct {
    double SIGZ, SU, OCRL, ST, GSOIL;
  } rows[] = {
      {100, 10, 0.318108, 8, 6000},  // both limits below 1 and above 8
      {100, 25, 1.0, 8, 15000},
      {100, 50, 2.378414, 4, 20020.499606},
      {100, 100, 5.656854, 2, 23314.432291},
      {100, 400, 32.0, 1, 40000},  // 300 - 85 * 3 is below 50
  };
  for (const auto& r : rows) {
    make({10.0}, {{1, 5.0, r.SIGZ}});
    clay(1, r.SU);
    R5SOIL(cmn);
    const checked_value values[] = {{"OCRL", cmn.OCRL(1), r.OCRL, 2e-6},
                                    {"ST", cmn.ST(1), r.ST, 1e-12},
                                    {"GSOIL", cmn.GSOIL(1), r.GSOIL, 1e-9},
                                    {"SURED", cmn.SURED(1), r.SU, 1e-12},
                                    {"POISL", cmn.POISL(1), 0.5, 0}};
    expect_all(values);
  }
}

TEST_F(SoilInput, SafetyReducesWhatIsGivenAndNotWhatIsFound) {
  cmn.SFTPHI = cmn.SFSU = 1.25;
  make({10.0, 20.0, 30.0}, {{1, 5.0, 100}, {2, 15.0, 100}, {3, 25.0, 100}});
  sand(1, 10000, 35, 0);
  sand(2, 10000, 0, 0);
  clay(3, 50);
  R5SOIL(cmn);
  EXPECT_NEAR(cmn.PHIL(1), 29.256068, 1e-6);
  EXPECT_NEAR(cmn.PHIL(2), 35.960933, 1e-6);
  EXPECT_NEAR(cmn.SUCMP(3), 40.0, 1e-12);
}

TEST_F(SoilInput, TheAtmosphereOfTheCorrelationsIsInRunUnits) {
  cmn.UNITF = 1000.0;
  cmn.UNITM = 10.0;
  make({100.0}, {{1, 50.0, 1000.0}});
  sand(1, 1.0E5, 0, 0);
  R5SOIL(cmn);
  EXPECT_NEAR(cmn.DR(1), 0.605651, 1e-6);
}

TEST_F(SoilInput, LevelsNearABottomTakeItsValues) {
  make({10.0, 20.0}, {{1, 5.0, 50}, {1, 9.9975, 100}, {1, 9.9985, 100}, {2, 10.0015, 100}, {2, 15.0, 150}});
  cmn.SUTOP(1) = 10;
  cmn.SUBOT(1) = 30;
  cmn.TCMTOP(1) = 1, cmn.TCMBOT(1) = 2, cmn.TTNTOP(1) = 3, cmn.TTNBOT(1) = 4, cmn.QTPTOP(1) = 5;
  cmn.QTPBOT(1) = 6;
  sand(2, 20000, 0, 0);
  R5SOIL(cmn);
  const checked_value rows[] = {
      // rows stand at -0.001 and 9.999, 10.001 and 19.999
      {"middle", cmn.SUCMP(1), 20.002, 1e-8},
      {"interpolated still", cmn.SUCMP(2), 29.997, 1e-8},
      {"bottom", cmn.SUCMP(3), 30, 0},
      {"bottom, friction", cmn.TAUCMP(3) * 100 + cmn.TAUTNS(3) * 10 + cmn.QTIP(3), 246, 0},
      {"middle, friction", cmn.TAUCMP(1) * 100 + cmn.TAUTNS(1) * 10 + cmn.QTIP(1), 190.5111, 1e-8},
      {"below a foreign bottom", cmn.CPTTIP(4), 20000, 0},
      {"sand below clay", cmn.SUCMP(5), 0, 0},
  };
  expect_all(rows);
}

TEST_F(SoilInput, AboveTheScourOnlyTheReducedStrengthsStay) {
  make({10.0}, {{1, 5.0, 0.0}});
  sand(1, 10000, 35, 0.5);
  cmn.SURED(1) = 7.0;
  cmn.PLIM(1) = 20;
  cmn.TCMTOP(1) = cmn.TCMBOT(1) = cmn.TTNBOT(1) = cmn.QTPBOT(1) = 3;
  R5SOIL(cmn);
  EXPECT_NEAR(cmn.PHIR(1), 35.0, 1e-9);
  EXPECT_EQ(cmn.SURED(1), 7.0);
  for (const auto* zero : {&cmn.SUCMP, &cmn.DELTAF, &cmn.PLI, &cmn.CPTTIP, &cmn.CPTAVR, &cmn.PHIL, &cmn.DR,
                           &cmn.OCRL, &cmn.ST, &cmn.TAUCMP, &cmn.TAUTNS, &cmn.QTIP, &cmn.POISL, &cmn.GSOIL})
    EXPECT_EQ((*zero)(1), 0.0);
}

TEST_F(SoilInput, ConeResistanceIsAveragedOverThreeDiametersWithFlatEnds) {
  make({10.0, 20.0}, {{1, 5.0, 100}, {2, 15.0, 200}});
  sand(1, 10000, 35, 0.5);
  sand(2, 20000, 35, 0.5);
  cmn.DIAMP = 4.0;
  R5SOIL(cmn);
  EXPECT_NEAR(cmn.CPTAVR(1), 128000.0 / 11, 1e-6);
  cmn.SIGZRES(1) = 0;  // no stress: its zero takes part
  R5SOIL(cmn);
  EXPECT_NEAR(cmn.CPTAVR(1), 36000.0 / 11, 1e-6);
  EXPECT_NEAR(cmn.CPTAVR(2), 184000.0 / 11, 1e-6);
}

TEST_F(SoilInput, PoissonsRatioOfTheDepthTableLandsOneRowAbove) {
  make({10.0, 20.0}, {{1, 5.0, 100}, {2, 15.0, 200}});
  clay(1, 50);
  sand(2, 20000, 35, 0.5);
  cmn.POIS(5) = 0.9;
  R5SOIL(cmn);
  EXPECT_EQ(cmn.POIS(1) + cmn.POIS(2), 1.0);
  EXPECT_NEAR(cmn.POIS(3) + cmn.POIS(4), 0.6, 1e-7);
  EXPECT_EQ(cmn.POIS(5), 0.9);
  EXPECT_EQ(cmn.G0SOIL(1), 0.0);
  EXPECT_EQ(cmn.G0SOIL(2), cmn.EPS) << "sand raises the row of its main layer's number";
}

TEST_F(SoilInput, Failures) {
  const auto run = [this] { R5SOIL(cmn); };
  make({10.0, 10.0015, 20.0}, {{3, 15.0, 100}});
  EXPECT_NE(stop_of(run), "");
  EXPECT_EQ(printed(18),
            "\n **** SR/R5SOIL : Error from SR/INTPOL  LAY,IERR=    1    2\n"
            "\n **** Error termination by SR/R5SOIL\n");
  make({10.0}, {{1, 5.0, 1e15}});
  sand(1, 0, 30, 0);
  EXPECT_NE(stop_of(run).find("): **** SR/R5SOIL : Zero division"), std::string::npos);
  cmn.units.close_unit(18, nullptr, true);
  make({10.0}, {{1, 5.0, 100}});
  EXPECT_NE(stop_of(run), "");
  EXPECT_EQ(printed(18),
            "\n **** SR/R5SOIL : Missing sand layer strength parameter\n"
            " Layer,CPT,PHI,Dr=    1       0.000       0.000       0.000\n");
}

}  // namespace
}  // namespace tervak
