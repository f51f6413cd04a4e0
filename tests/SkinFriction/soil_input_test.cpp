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
    cmn.NUMDIA = 1, cmn.DIAM = {1.0}, cmn.DIAMP = 1.0;
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

// SIGZ, given CPT, PHI, DR, SU; expected CPT, PHI, DR, SU, OCRL, ST, POISL, GSOIL. By hand from the
// correlations, at 100 kPa of atmosphere and a factor 2 on Go: the cone alone; all given; the density kept
// within 0.01 to 1.1 and the angle below 40; an angle alone, a density alone; clay with both limits below 1
// and above 8, and with 300 - 85 * 3 below 50.
TEST_F(SoilInput, WhatIsMissingIsFilledInAndWhatIsGivenStays) {
  const double rows[][13] = {
      {100, 10000, 0, 0, 0, 10000, 35.960933, 0.605651, 0, 1, 1, 0.3, 56169.3697},
      {400, 10000, 35, 0.5, 0, 10000, 35, 0.5, 0, 1, 1, 0.3, 108422.1822},
      {400, 100, 0, 0, 0, 100, 22.067950, 0.01, 0, 1, 1, 0.3, 62774.3165},
      {400, 1e6, 0, 0, 0, 1e6, 40, 1.1, 0, 1, 1, 0.3, 129928.6399},
      {100, 0, 20, 0, 0, 2255.69326, 20, 0.01, 0, 1, 1, 0.3, 28179.1075},
      {400, 0, 0, 0.6, 0, 19719.43191, 34.070618, 0.6, 0, 1, 1, 0.3, 104720.7748},
      {400, 0, 0, 1.1, 0, 68827.58029, 40, 1.1, 0, 1, 1, 0.3, 129928.6399},
      {100, 0, 0, 0, 10, 0, 0, 0, 10, 0.318108, 8, 0.5, 6000},
      {100, 0, 0, 0, 400, 0, 0, 0, 400, 32, 1, 0.5, 40000},
  };
  for (const auto& [SIGZ, CPT, PHI, DR, SU, CPTTIP, PHIL, DRL, SURED, OCRL, ST, POISL, GSOIL] : rows) {
    make({10.0}, {{1, 5.0, SIGZ}});
    sand(1, CPT, PHI, DR);
    clay(1, SU);
    R5SOIL(cmn);
    const double found[] = {cmn.CPTTIP(1), cmn.PHIL(1), cmn.PHIR(1),  cmn.DR(1),    cmn.SURED(1),
                            cmn.OCRL(1),   cmn.ST(1),   cmn.POISL(1), cmn.GSOIL(1), cmn.DELTAF(1)};
    const double expected[] = {CPTTIP, PHIL, PHIL, DRL, SURED, OCRL, ST, POISL, GSOIL, 29};
    for (std::size_t k = 0; k < std::size(expected); ++k)
      EXPECT_NEAR(found[k], expected[k], 2e-6 * expected[k]) << k << " of GSOIL " << GSOIL;
  }
}

TEST_F(SoilInput, TheAtmosphereOfTheCorrelationsIsInRunUnits) {
  cmn.UNITF = 1000.0, cmn.UNITM = 10.0;
  make({100.0}, {{1, 50.0, 1000}});
  sand(1, 1e5, 0, 0);
  R5SOIL(cmn);
  EXPECT_NEAR(cmn.PHIL(1), 35.960933, 1e-6);
}

TEST_F(SoilInput, LevelsNearABottomTakeItsValues) {
  make({10.0, 20.0}, {{1, 5.0, 50}, {1, 9.9975, 100}, {1, 9.9985, 100}, {2, 10.0015, 100}, {2, 15.0, 150}});
  cmn.SUTOP(1) = 10, cmn.SUBOT(1) = 30;
  cmn.TCMTOP(1) = 1, cmn.TCMBOT(1) = 2, cmn.TTNTOP(1) = 3, cmn.TTNBOT(1) = 4;
  cmn.QTPTOP(1) = 5, cmn.QTPBOT(1) = 6;
  sand(2, 20000, 0, 0);
  R5SOIL(cmn);
  // The rows of the main layers stand at -0.001 and 9.999, 10.001 and 19.999. Between them; between them
  // still; the bottom's values; below the bottom of another layer; sand below clay.
  const double found[] = {cmn.SUCMP(1), cmn.TAUCMP(1), cmn.TAUTNS(1), cmn.QTIP(1),
                          cmn.SUCMP(2), cmn.SUCMP(3),  cmn.TAUCMP(3), cmn.TAUTNS(3),
                          cmn.QTIP(3),  cmn.CPTTIP(4), cmn.SUCMP(5)};
  const double expected[] = {20.002, 1.5001, 3.5001, 5.5001, 29.997, 30, 2, 4, 6, 20000, 0};
  for (std::size_t k = 0; k < std::size(expected); ++k) EXPECT_NEAR(found[k], expected[k], 1e-7) << k;
}

TEST_F(SoilInput, AboveTheScourTheReducedStrengthsAndTheModulusStay) {
  make({10.0}, {{1, 5.0, 100}});
  sand(1, 10000, 35, 0.5);
  cmn.PLIM(1) = 20;
  cmn.TCMTOP(1) = cmn.TCMBOT(1) = cmn.TTNBOT(1) = cmn.QTPBOT(1) = 3;
  R5SOIL(cmn);
  cmn.SIGZRES(1) = 0, cmn.SURED(1) = 7, cmn.PHIR(1) = 8, cmn.GSOIL(1) = 9;
  R5SOIL(cmn);
  EXPECT_NEAR(cmn.PHIR(1), 35.0, 1e-9);
  EXPECT_EQ(cmn.SURED(1), 7.0);
  EXPECT_EQ(cmn.GSOIL(1), 9.0);
  for (const auto* zero : {&cmn.SUCMP, &cmn.DELTAF, &cmn.PLI, &cmn.CPTTIP, &cmn.CPTAVR, &cmn.PHIL, &cmn.DR,
                           &cmn.OCRL, &cmn.ST, &cmn.TAUCMP, &cmn.TAUTNS, &cmn.QTIP, &cmn.POISL})
    EXPECT_EQ((*zero)(1), 0.0);
}

TEST_F(SoilInput, ConeResistanceIsAveragedOverThreeDiametersWithFlatEnds) {
  make({10.0, 20.0}, {{1, 5.0, 0}, {2, 15.0, 200}});  // no stress in layer 1: its zero takes part
  sand(1, 10000, 35, 0.5);
  sand(2, 20000, 35, 0.5);
  cmn.DIAMP = 4.0;
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
  make({10.0}, {{1, 5.0, 100}});
  EXPECT_NE(stop_of(run), "");
  make({10.0}, {{1, 5.0, 1e15}});
  sand(1, 0, 30, 0);
  EXPECT_NE(stop_of(run).find("): **** SR/R5SOIL : Zero division"), std::string::npos);
  EXPECT_EQ(printed(18),
            "\n **** SR/R5SOIL : Error from SR/INTPOL  LAY,IERR=    1    2\n"
            "\n **** Error termination by SR/R5SOIL\n"
            "\n **** SR/R5SOIL : Missing sand layer strength parameter\n"
            " Layer,CPT,PHI,Dr=    1       0.000       0.000       0.000\n");
}

}  // namespace
}  // namespace tervak
