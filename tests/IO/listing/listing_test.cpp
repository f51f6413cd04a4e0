// What the pages of the golden decks do not show.

#include <stdexcept>

#include "IO/listing/PRINT.hpp"
#include "IO/listing/PRINT_labels.hpp"
#include "IO/output_support.hpp"

namespace tervak {
namespace {

/// Monopile curves that are the same for every diameter and layer; an empty one counts as not there.
struct monopile_curves : Varno::KestraCommonLibrary::CommonData::IMonoPileDataProvider {
  monopile_curve mtheta, bmtheta, bsy;
  bool HasMThetaData() const override { return !mtheta.empty(); }
  monopile_curve GetMThetaCurve(diameter_number, layer_number) const override { return mtheta; }
  bool HasBMThetaData() const override { return !bmtheta.empty(); }
  monopile_curve GetBMThetaCurve(diameter_number, layer_number) const override { return bmtheta; }
  bool HasBSYData() const override { return !bsy.empty(); }
  monopile_curve GetBSYCurve(diameter_number, layer_number) const override { return bsy; }
};

struct Listing : output_test {
  /// The whole listing, printed anew.
  std::string all_pages() {
    cmn.units.close_unit(cmn.NFLIS, nullptr, true);
    cmn.JPRINT = 2;
    PRINT(cmn, {nullptr, 0}, {nullptr, 0}, {2024, 2, 5, 9, 8, 7});
    return printed(cmn.NFLIS);
  }
};

TEST_F(Listing, ALayerAtTheLimitsIsStaticClay) {
  make_profile({1.0}, 1);
  cmn.ZCYCL = cmn.ZLAY(1);
  cmn.PHIR(1) = cmn.EPS;
  cmn.SURED(1) = 62.5;
  cmn.EPS50(1) = 0.0125;
  const std::string clay =
      "\n SOIL TYPE : CLAY   SU =    62.5  GAMEFF =     0.00  EPS50 = 0.0125  STATIC P-Y\n";
  EXPECT_NE(all_pages().find(clay), std::string::npos);
  EXPECT_EQ(all_pages().find("DATA TO BE GENERATED"), std::string::npos) << "neither at middle nor at bottom";
}

TEST_F(Listing, CodesThatNoDeckBringsToAPage) {
  EXPECT_STREQ(PY_label(99), "MANUAL");
  EXPECT_THROW(QZ_label(588), std::out_of_range);
}

TEST_F(Listing, MonopileKindsInOneTableOrEachInTheirs) {
  make_profile({1.0}, 1);
  const auto data = std::make_shared<monopile_curves>();
  cmn.MONOPILE = data;
  EXPECT_TRUE(all_pages().ends_with("  09:08:07\n")) << "a page head with nothing below";
  data->mtheta.assign(3, {0.5, 200.0});
  data->bsy.assign(3, {0.125, 40000.0});
  for (const char* heading : {"\n COMPLETE M-THETA RESULTS ", "\n COMPLETE BS-Y RESULTS "})
    EXPECT_NE(all_pages().find(heading), std::string::npos) << "two kinds of three";
  data->bmtheta.assign(2, {0.25, 3000.0});
  EXPECT_THROW(all_pages(), std::out_of_range);
  data->bmtheta.assign(3, {0.25, 3000.0});
  EXPECT_TRUE(all_pages().ends_with(
      "\n     3     2.000E+02  5.000E-01    4.000E+04  1.250E-01    3.000E+03  2.500E-01\n"));
}

}  // namespace
}  // namespace tervak
