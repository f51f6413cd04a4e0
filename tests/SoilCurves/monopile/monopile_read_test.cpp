#include <tuple>

#include "IO/units/TervakUnitConverter.hpp"
#include "SoilCurves/monopile/MonoPileRead.hpp"
#include "support/small_layer.hpp"

using namespace Vrsk::Plin::TervakExchange;
using Varno::KestraCommonLibrary::CommonData::MonoPileCurve;

namespace {

/// Two layers and the diameters 1 and 2 in a run of tenths of metres and half kilonewtons.
struct monopile : small_layer {
  Tervak profile;
  TervakInputData& data = profile.data;
  std::shared_ptr<Varno::KestraCommonLibrary::CommonData::IMonoPileDataProvider> MONOPILE;

  monopile() : small_layer(2, {1.0, 2.0}) {
    cmn.CONVERTER = std::make_shared<Varno::TervakLibrary::IO::TervakUnitConverter>(2.0, 10.0);
  }
  /// What the reading printed, without the record's end.
  std::string read() {
    const bool accepted = Varno::TervakLibrary::SoilCurves::MonoPileRead(cmn, profile, MONOPILE);
    EXPECT_EQ(accepted, MONOPILE != nullptr);
    EXPECT_EQ(cmn.IERR, 0);
    return accepted ? log() : log().substr(0, log().size() - 2);
  }
};

const ManualCurveRecord GOOD = {1, 0.1, {0, 10, 20}, {0, 0.01, 0.02}};

ManualCurveRecord curve_of(int points) {
  ManualCurveRecord record = {1, 0.1, {}, {}};
  for (int i = 0; i < points; ++i) record.Stresses.push_back(i), record.Displacements.push_back(i);
  return record;
}

}  // namespace

TEST(MonoPileRead, JudgesCurvesAndLinesInTheOrderOfTheChecks) {
  const std::string M = " ****  MANUAL M-THETA ERROR:";
  const std::string L = " ****  MANUAL M-THETA DATA MODIFICATION ERROR: ";
  const struct {
    ManualCurveRecord record;
    MonopileModificationRecord line;
    std::string finding;  // empty: accepted
  } cases[] = {
      {{3, 0.15, {0}, {0}}, {}, M + " Diameter 1.500000 not found. Layer: 3."},
      {{1, 0.1 + 0.9e-9, {0, 1}, {0, 1}}, {1, 1, 0.1, 1, 1}, ""},
      {{1, 0.1 + 1.1e-9, {0, 1}, {0, 1}}, {}, M + " Diameter 1.000000 not found. Layer: 1."},
      {{3, 0.1, {0}, {0}}, {}, M + " Layer 3 greater than total number of layers 2."},
      {{2, 0.1, {0, 1}, {0, 1}}, {1, 1, 0.1, 1, 1}, ""},
      {{0, 0.1, {0, 1}, {0, 1}}, {1, 1, 0.1, 1, 1}, ""},
      {curve_of(16), {}, M + " Number of points specified, 16, cannot be greater than 15. Layer: 1."},
      {{1, 0.1, {5}, {5}}, {}, M + " Number of points specified cannot be less than 2. Layer: 1."},
      {{1, 0.1, {0.5, 1}, {0, 1}}, {}, M + " First point has to be the origin. Layer: 1."},
      {{1, 0.1, {0, 1}, {2e-12, 1}}, {}, M + " First point has to be the origin. Layer: 1."},
      {{1, 0.1, {-5, 1}, {-1, 1}}, {1, 1, 0.1, 1, 1}, ""},
      {{1, 0.1, {0, 1, 2}, {0, 1, 1}}, {1, 1, 0.1, 1, 1}, ""},
      {{1, 0.1, {0, 1, 2, 3}, {0, 1, 1, 0.5}},
       {2, 1, 0.1, 1, 1},
       M + " Duplicate THETA value found at index 2 Layer: 1." + M +
           " Duplicate THETA value found at index 3 Layer: 1." + L +
           "LAY1 cannot be greater than LAY2 Line: 2."},
      {GOOD, {4, 3, 0.15, 0, 0}, L + "LAY1 cannot be greater than LAY2 Line: 2."},
      {GOOD, {1, 3, 0.15, 0, 0}, L + "LAY2 cannot be greater than total number of layers. Line: 2."},
      {GOOD, {1, 2, 0.15, 0, 0}, L + "A diameter not present was found in the table. Line: 2."},
      {GOOD, {1, 2, 0.1, 0.9e-12, 0}, L + "MFACT has to be greater than zero. Line: 2."},
      {GOOD, {1, 2, 0.1, 1.1e-12, 0.9e-12}, L + "THETAFACT has to be greater than zero. Line: 2."},
      {GOOD, {-1, 2, 0.1, 1.1e-12, 1.1e-12}, ""},
  };
  for (const auto& c : cases) {
    monopile pile;
    pile.data.Control.DMData = true;
    pile.data.ManualMtheta.Records = {c.record};
    pile.data.MthetaModification.Records = {{1, 1, 0.1, 1, 1}, c.line};
    EXPECT_EQ(pile.read(), c.finding);
  }
}

TEST(MonoPileRead, WordsOfTheOtherKinds) {
  const struct {
    bool shear;
    double force_factor;
    std::string kind, displacement, factor;
  } cases[] = {{true, 0, "BS-Y", "Y", "BSFACT"},
               {true, 1, "BS-Y", "Y", "YFACT"},
               {false, 0, "BM-THETA", "THETA", "BMFACT"},
               {false, 1, "BM-THETA", "THETA", "THETAFACT"}};
  for (const auto& c : cases) {
    monopile pile;
    (c.shear ? pile.data.Control.BSData : pile.data.Control.BMData) = true;
    pile.data.ManualBSY.Records = pile.data.ManualBMtheta.Records = {{1, 0.1, {0, 1, 2}, {0, 1, 1}}};
    pile.data.BSYModification.Records =
        pile.data.BMthetaModification.Records = {{1, 1, 0.1, c.force_factor, 0}};
    EXPECT_EQ(pile.read(), " ****  MANUAL " + c.kind + " ERROR: Duplicate " + c.displacement +
                               " value found at index 2 Layer: 1. ****  MANUAL " + c.kind +
                               " DATA MODIFICATION ERROR: " + c.factor +
                               " has to be greater than zero. Line: 1.");
  }
}

TEST(MonoPileRead, LaysOutTheCurve) {
  monopile pile;
  pile.cmn.SCRLOC = 5.0;  // the level of layer 1, which is dead
  ManualCurveRecord full = curve_of(15);
  full.Layer = 2, full.Diameter = 0.2;
  const ManualCurveRecord lower = {2, 0.1, {0, 10, 12, 20}, {0, 0.01, 0.01, 0.02}};
  pile.data.Control.DMData = pile.data.Control.BSData = true;
  pile.data.ManualMtheta.Records = {GOOD, lower, {2, 0.1, {0, 1}, {0, 1}}};
  pile.data.MthetaModification.Records = {{2, 2, 0.1, 3, 0.5}, {2, 2, 0.1, 7, 7}};
  pile.data.ManualBSY.Records = {full};
  ASSERT_EQ(pile.read(), "");
  const auto& made = *pile.MONOPILE;
  // slot 14 is the origin; behind the given points stands the far one
  const std::tuple<MonoPileCurve, std::size_t, std::pair<double, double>> cases[] = {
      {made.GetMThetaCurve(1, 1), 16, {0.02, 0}},     {made.GetMThetaCurve(1, 2), 15, {0.005, 72}},
      {made.GetMThetaCurve(1, 2), 13, {-0.005, -72}}, {made.GetMThetaCurve(1, 2), 28, {2000, 120}},
      {made.GetMThetaCurve(2, 2), 14, {2000, 0}},     {made.GetBSYCurve(2, 2), 28, {140, 28}},
      {made.GetBSYCurve(2, 2), 0, {-140, -28}},
  };
  for (const auto& [curve, slot, value] : cases) {
    ASSERT_EQ(curve.size(), 29U);
    EXPECT_EQ(curve[slot], value) << slot;
  }
  EXPECT_TRUE(made.HasMThetaData() && made.HasBSYData() && !made.HasBMThetaData());
  for (const auto& [ND, NL] : {std::pair{0, 1}, {3, 1}, {1, 0}, {1, 3}})
    EXPECT_TRUE(made.GetBSYCurve(tervak::diameter_number::of(ND), tervak::layer_number::of(NL)).empty())
        << ND << NL;
  EXPECT_TRUE(made.GetBMThetaCurve(1, 1).empty());
}
