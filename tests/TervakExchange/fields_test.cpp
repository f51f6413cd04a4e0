#include <gtest/gtest.h>

#include "TervakExchange/decks.hpp"

using namespace decks;

namespace {

using numbers = std::vector<double>;

// Which column goes where shows in the results of the example decks, byte for byte; here stands what they do
// not tell apart.
TEST(DeckFields, ValuesThatAreLeftOut) {
  const Tervak t = read(REVISION5).at(0);
  const TervakInputData& d = t.data;
  EXPECT_EQ(numbers({d.UnitF, d.UnitM, d.ThirdModulus, t.tanPhiCoeff, t.shearStrengthCoeff,
                     t.skinFrictionCoeff, t.pileTipResistanceCoeff, d.PrintLevel * 1.0}),
            numbers(8, 1.0));
  EXPECT_EQ(numbers({t.depthOfScour, t.depthOfLocalScour, t.sideSlope, t.verticalStressAtSurface,
                     t.verticalStressUnderEmbankment, t.verticalStressUnderCircularLoadedArea,
                     d.EchoSwitch * 1.0, d.NumberOfDisplacements * 1.0, d.Subdivision.NumberOfPile * 1.0}),
            numbers(9, 0.0));
  EXPECT_EQ(d.Boring, "");
  EXPECT_EQ(d.Subdivision.Records.at(0).PyParameters, (std::array<double, 5>{}));
  // A list of factors that is left out still ends with its closing record.
  for (const int L1 : {d.PyModification.Records.at(0).L1, d.TzModification.Records.at(0).L1,
                       d.QzModification.Records.at(0).L1})
    EXPECT_EQ(L1, 0);
  EXPECT_FALSE(d.Control.HasDMData() || d.Control.HasBMData() || d.Control.HasBSData());
}

TEST(DeckFields, CountsAndTheShearModulusOfRevision4) {
  const TervakInputData d = read(REVISION4).at(0).data;
  EXPECT_EQ(d.NumberOfSoilTypes, 1);
  EXPECT_EQ(d.NumberOfTzQzRows, 2);
  EXPECT_EQ(d.NumberOfLayers, 12);
  EXPECT_EQ(d.TzQzTable.at(0).ShearModulus, std::nullopt);
  EXPECT_EQ(d.TzQzTable.at(1).ShearModulus, 7000);
  // Fewer layers than the table has, and none at all, are for the stages to judge.
  EXPECT_EQ(read(REVISION4 + std::string("NUMLAY 3\n")).at(0).data.NumberOfLayers, 3);
  EXPECT_EQ(read(with(with(REVISION4, 24, ""), 23, "")).at(0).data.NumberOfLayers, 0);
}

TEST(DeckFields, WhatIsNoPlainNumber) {
  const Tervak t =
      read(
          with(REVISION5, 23, "1 30.5 4 284 0 200 1 81 82 83 84 85\n") +
          "MANUALTZ\nAT m1 0\n0 0\nBORING  B-1, north \t! text\nDIAM 1.8\nSCRSLP 25\nMODIFYQZ\n3 4 1.5 5 6 7 8 9\n")
          .at(0);
  const TervakInputData& d = t.data;
  EXPECT_EQ(d.Boring, "B-1, north");
  EXPECT_EQ(d.Diameters, (numbers{1.2, 1.5, 1.8}));
  EXPECT_EQ(t.sideSlope, 25 * 0.017453292519943295);
  EXPECT_EQ(d.Subdivision.Records.at(0).PyParameters, (std::array<double, 5>{81, 82, 83, 84, 85}));
  EXPECT_EQ(d.QzModification.Records.size(), 2u);
}

TEST(DeckFields, Curves) {
  const Tervak t =
      read(with(with(REVISION5, 23, "1 30.5 1 0 0 0 1\n"), 7, "DIAM 1.2 1.5\n") +
           "MANUALBSY\nAT 1 1.2\n0 0\n5 0.1\nMODIFYBSY\n1 2 1.2 3 4\n"
           "MANUALMTHETA\nAT 2 1.5\n0 0\n7 0.2\nMODIFYMTHETA\n3 4 1.5 5 6\n"
           "MANUALBMTHETA\nAT 3 1.8\n0 0\n9 0.3\nMODIFYBMTHETA\n5 6 1.8 7 8\n"
           "MANUALPY\n at 1 1.2\n 0 0\n 8 0.01\n AT 1 1.5\nMANUALTZ\nAT 1 1.2\n-3 -0.1\nAT 1 1.5\n"
           "MANUALQZ\nAT 1 1.2\n4 .2\nAT 1 1.5\n")
          .at(0);
  const TervakInputData& d = t.data;
  EXPECT_TRUE(d.Control.HasDMData() && d.Control.HasBMData() && d.Control.HasBSData());
  EXPECT_EQ(d.ManualPy.Records.at(0).Stresses, (numbers{0, 8}));
  EXPECT_EQ(d.ManualPy.Records.at(0).Displacements, (numbers{0, 0.01}));
  EXPECT_EQ(d.ManualPy.Records.at(1).Diameter, 1.5);
  EXPECT_TRUE(d.ManualPy.Records.at(1).Stresses.empty());
  EXPECT_EQ(d.ManualTz.Records.at(0).Displacements, (numbers{-0.1}));
  EXPECT_EQ(d.ManualQz.Records.at(1).Layer, 1);
  EXPECT_EQ(d.ManualMtheta.GetManualCurve(2, 1.5, 1), (ManualMonopileCurve{{0, 0}, {0.2, 7}}));
  EXPECT_EQ(d.ManualBSY.GetManualCurve(1, 1.2, 1), (ManualMonopileCurve{{0, 0}, {0.1, 5}}));
  EXPECT_EQ(d.ManualBMtheta.GetManualCurve(3, 1.8, 1), (ManualMonopileCurve{{0, 0}, {0.3, 9}}));
  EXPECT_EQ(d.BSYModification.GetModification(2, 1.2, 1), std::make_pair(3.0, 4.0));
  EXPECT_EQ(d.MthetaModification.GetModification(3, 1.5, 1), std::make_pair(5.0, 6.0));
  EXPECT_EQ(d.BMthetaModification.GetModification(6, 1.8, 1), std::make_pair(7.0, 8.0));
}

TEST(MonopileSections, FirstRecordThatFits) {
  ManualMonopileSection section;
  section.Records = {{1, 2.0, {0, 5, 6}, {0, 0.1, 0.1}}, {1, 2.0, {9}, {0}}};
  const ManualMonopileCurve first{{0, 0}, {0.1, 6}};  // the last force of a repeated displacement
  EXPECT_EQ(section.GetManualCurve(1, 2.0, 1), first);
  EXPECT_EQ(section.GetManualCurve(1, 2000.0 + 9E-9, 1000), first);  // in run units, as the tolerance
  EXPECT_TRUE(section.GetManualCurve(1, 2000.0 + 2E-8, 1000).empty());
  EXPECT_TRUE(section.GetManualCurve(2, 2.0, 1).empty());

  MonopileModificationSection factors;
  factors.Records = {{2, 3, 2.0, 1.1, 1.2}, {3, 4, 2.0, 1.3, 1.4}};
  EXPECT_EQ(factors.GetModification(3, 200.0, 100), std::make_pair(1.1, 1.2));
  EXPECT_EQ(factors.GetModification(4, 200.0, 100), std::make_pair(1.3, 1.4));
  EXPECT_THROW(static_cast<void>(factors.GetModification(1, 2.0, 1)), std::out_of_range);
  EXPECT_THROW(static_cast<void>(factors.GetModification(3, 2.1, 1)), std::out_of_range);
}

}  // namespace
