#include <stdexcept>

#include "Control/run/OutputFiles.hpp"
#include "IO/interface_file/TervakRIFWriter.hpp"
#include "IO/output_support.hpp"
#include "IO/usfos/G2USFOS.hpp"
#include "IO/usfos/G2USFOS_materials.hpp"

namespace tervak {

static bool operator==(const usfos_point& a, const usfos_point& b) { return a.F == b.F && a.U == b.U; }

namespace {

TEST(Usfos, NumbersRoundTheDiameterWithTwoLimits) {
  const struct {
    double D;
    int S, L, T, number;
  } rows[] = {{2.0, 2000, 7, 1, 2000071}, {0.762, 762, 12, 3, 762123}, {4.49, 4490, 1, 2, 4490012},
              {4.5, 5, 1, 1, 4500011},    {99.49, 99, 1, 1, 99490011}, {99.5, 100, 150, 1, 101501}};
  for (const auto& row : rows) {
    EXPECT_EQ(usfos_soil_number(row.D), row.S) << row.D;
    EXPECT_EQ(usfos_material_number(row.D, layer_number::of(row.L), row.T), row.number) << row.D;
  }
}

TEST(Usfos, ThinningByHand) {
  const struct {
    const char* what;
    std::vector<usfos_point> given, kept;
  } rows[] = {
      {"both members within one per cent", {{10, 1}, {10.05, 1.005}, {20, 1.5}}, {{10, 1}, {20, 1.5}}},
      {"one member only", {{10, 1}, {10.05, 1.5}, {20, 1.505}}, {{10, 1}, {10.05, 1.5}, {20, 1.505}}},
      {"compared with the last kept", {{100, 1}, {100.6, 1.006}, {101.2, 1.012}}, {{100, 1}, {101.2, 1.012}}},
      {"zeros agree", {{0, -1}, {1E-100, -1.001}, {5, 1}}, {{0, -1}, {5, 1}}},
      {"zero and value differ", {{0, 1}, {5, 1}, {0, 1}, {5, 1}}, {{0, 1}, {5, 1}, {0, 1}, {5, 1}}},
      {"far ends", {{-50, -10}, {-40, -1}, {10, 1}, {40, 4}}, {{-50, -2}, {-40, -1}, {10, 1}, {20, 2}}},
      {"not too far", {{-50, -2}, {-40, -1}, {10, 1}, {40, 2}}, {{-50, -2}, {-40, -1}, {10, 1}, {40, 2}}},
      {"last drawn in to a zero", {{-5, -1}, {10, 0}, {20, 3}}, {{-5, -1}, {10, 0}, {10, 0}}},
      {"one end without force is removed", {{10, 1}, {0, 2}, {0, 3}}, {{10, 1}, {0, 2}}},
      {"the test of the end is signed", {{10, 1}, {20, 2}, {-30, 3}}, {{10, 1}, {20, 2}}},
      {"end without displacement", {{10, -1}, {20, 0}}, {{10, -1}}},
      {"first drawn in, then second removed", {{10, 5}, {0, 1}}, {{10, 2}}},
      {"first drawn in to a zero", {{5, 3}, {10, 0}}, {{5, 0}}},
      {"a single point", {{10, 5}, {10, 5}}, {{10, 5}}},
      {"a single point at no displacement", {{10, 0}, {10, 0}}, {}},
  };
  for (const auto& row : rows) EXPECT_EQ(usfos_thin(row.given), row.kept) << row.what;
}

TEST(Usfos, ACurveOfNextToNoForceIsNoMaterial) {
  EXPECT_EQ(usfos_make_material({{0.22, 1.0}, {0.22, 2.0}}, 2.0, 1, 1).number, 0);  // squares of 0.0968
  EXPECT_EQ(usfos_make_material({{0.23, 1.0}, {0.23, 2.0}}, 2.0, 1, 1).number, 2000011);
}

using UsfosExport = output_test;

TEST_F(UsfosExport, LevelsBelowTheSeaFloorAndSmallFactors) {
  make_profile({2.0}, 1);
  cmn.ZSEAFL = 5.0;
  cmn.ZBOTM(1) = 7.0;
  int IERR = 0;
  G2USFOS(cmn, cmn.DIAM, 1.0, 0.0005, 2, 9, IERR);
  for (const char* line : {"\n SOILCHAR    2000      1  -0.500E+01   0.200E+01   0.100E+01   0.500E-03\n",
                           "          0.00       -2.00   2000011   2000012   2000013\n"})
    EXPECT_NE(printed(9).find(line), std::string::npos) << line;
}

TEST_F(UsfosExport, MaterialsAreRankedAndDuplicatesRefused) {
  std::vector<usfos_material> materials;
  for (const int number : {30, -5, 10, 0, -7, 10, 20})
    materials.push_back({number, 2, {4, 0, 0, 0, 0, 0, 0, 0}});
  materials[2].record[0] = 2;  // the first of the two with number 10
  materials[4].type = 4;
  EXPECT_FALSE(UWRMAT(cmn, 9, materials));
  EXPECT_EQ(printed(9),
            "# WARNING from UWRMAT: Materials missing ! \n"
            "'\n'            Mat  ID               P           Delta \n"
            " HYPELAST        10\n\n  *** ERROR IN UWRMAT ***\n ELPLCURV        20\n"
            " ELPLCURV        30\n ELPLCURV        -7\n ELPLCURV        -5\n");
}

TEST_F(UsfosExport, DiametersThatRoundAlikeFailButTheInterfaceFileIsWritten) {
  make_profile({2.0, 2.0004}, 1);
  cmn.RIFWRITER = std::make_shared<Varno::TervakLibrary::IO::TervakRIFWriter>();
  OutputFiles(cmn, 1);
  EXPECT_EQ(cmn.IERR, -1);
  EXPECT_TRUE(printed(9).ends_with("\n\n  *** ERROR IN G2U_WMAT ***\n\n  *** ERROR IN G2USFOS ***\n"));
  cmn.ZTQZ(2) = 0.0;  // a failure of the interface file overrides
  OutputFiles(cmn, 2);
  EXPECT_EQ(cmn.IERR, 1);
  cmn.RIFWRITER.reset();
  EXPECT_NE(get("TERVAK.RIF").find("\nRVSOILTZ"), std::string::npos);
}

TEST_F(UsfosExport, LimitCountsEmptyMaterials) {
  int IERR = 0;
  G2U_WMAT(cmn, 7, 1, std::vector<usfos_material>(5000), IERR);
  EXPECT_EQ(IERR, 0);
  G2U_WMAT(cmn, 7, 3, {}, IERR);  // no such mode
  EXPECT_EQ(IERR, -1);
  IERR = 0;
  G2U_WMAT(cmn, 8, 1, std::vector<usfos_material>(5001), IERR);
  EXPECT_EQ(IERR, -1);
  EXPECT_EQ(printed(8), "\n  *** ERROR IN G2U_WMAT ***\n\n  *** Number of Materials Exceeds Max of 5000\n");
}

TEST_F(UsfosExport, ExceptionOutOfTheExportEndsTheRun) {
  make_profile({3.0E6}, 1);  // material numbers beyond an int
  try {
    OutputFiles(cmn, 1);
    FAIL() << "no exception";
  } catch (const std::runtime_error& failure) {
    EXPECT_STREQ(failure.what(), "Invalid FORMAT specification: ********warningusfosexportfailed");
  }
}

}  // namespace
}  // namespace tervak
