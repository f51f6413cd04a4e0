#include <stdexcept>

#include "IO/G2USFOS.hpp"
#include "IO/G2USFOS_materials.hpp"
#include "IO/OutputFiles.hpp"
#include "IO/TervakRIFWriter.hpp"
#include "output_support.hpp"

namespace tervak {

static bool operator==(const usfos_point& a, const usfos_point& b) { return a.F == b.F && a.U == b.U; }

namespace {

const std::string BLANK25(25, ' '), BLANK20(20, ' ');

TEST(usfos, NumbersRoundTheDiameterWithTwoLimits) {
  const struct {
    double D;
    int S, L, T, number;
  } rows[] = {{2.0, 2000, 7, 1, 2000071}, {0.762, 762, 12, 3, 762123}, {4.49, 4490, 1, 2, 4490012},
              {4.5, 5, 1, 1, 4500011},    {99.49, 99, 1, 1, 99490011}, {99.5, 100, 150, 1, 101501}};
  for (const auto& row : rows) {
    EXPECT_EQ(usfos_soil_number(row.D), row.S) << row.D;
    EXPECT_EQ(usfos_material_number(row.D, row.L, row.T), row.number) << row.D;
  }
}

TEST(usfos, ThinningByHand) {
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

struct usfos_export : output_test {
  /// P-Y and Q-Z curves of three corners, no T-Z curve; the second layer, if any, is empty.
  void make_corners(const vector1<double>& diameters, int layers) {
    make_profile(diameters, layers);
    for (int ND = 1; ND <= cmn.NUMDIA; ++ND)
      for (int L = 1; L <= layers; ++L)
        for (int P = 1; P <= 29; ++P) {
          const double stress = L == 2 ? 0.0 : P < 15 ? -50.0 : P == 15 ? 10.0 : 50.0;
          cmn.PYSTR(P, ND, L) = cmn.QZSTR(P, ND, L) = stress;
          cmn.TZSTR(P, ND, L) = P == 15 ? 0.001 : 0.0;  // too little to count
          cmn.PYDSP(P, ND, L) = cmn.QZDSP(P, ND, L) = P < 15 ? -1.0 : P == 15 ? 1.0 : 2.0;
        }
    cmn.RIFWRITER = std::make_shared<Varno::TervakLibrary::IO::TervakRIFWriter>();
  }
  lines_of_text unit(const std::string& number) { return lines("fem_io_unit_0" + number); }
};

TEST_F(usfos_export, BothFilesOfAProfile) {
  make_corners({2.0}, 2);
  OutputFiles(cmn, 1);
  EXPECT_EQ(cmn.IERR, 0);
  const std::string block =
      "'|'            Soil_ID  Type  Z_mud      D_ref     F_Fac     L_Fac |"
      " SOILCHAR    2000      1    -0.000     2.000     1.000     1.000|"
      "'|'                           Z_top      Z_bott    P-Y       T-Z       Q-Z |" +
      BLANK20 + "        0.00       -2.00   2000011         0   2000013|" + BLANK20 +
      "       -2.00       -4.00         0         0         0|";
  // The list of pairs begins with the count, and the last displacement, 2.0, is missing.
  EXPECT_EQ(rows(unit("08"), 0),
            block +
                "MISOPL    0.20000110E+07  0.40000000E+01  0.00000000E+00  0.00000000E+00|"
                "          0.00000000E+00  0.00000000E+00  0.00000000E+00  0.00000000E+00|               3|"
                "          0.30000000E+01 -0.10000000E+03|         -0.10000000E+01  0.20000000E+02|"
                "          0.10000000E+01  0.10000000E+03|"
                "MISOPL    0.20000130E+07  0.20000000E+01  0.00000000E+00  0.00000000E+00|"
                "          0.00000000E+00  0.00000000E+00  0.00000000E+00  0.00000000E+00|               3|"
                "          0.30000000E+01 -0.15707951E+03|         -0.10000000E+01  0.31415901E+02|"
                "          0.10000000E+01  0.15707951E+03");
  EXPECT_EQ(rows(unit("09"), 0),
            block + "'|'            Mat  ID               P           Delta | ELPLCURV   2000011|" + BLANK25 +
                "   -1.00000E+02   -1.00000E+00|" + BLANK25 + "    2.00000E+01    1.00000E+00|" + BLANK25 +
                "    1.00000E+02    2.00000E+00| HYPELAST   2000013|" + BLANK25 +
                "   -1.57080E+02   -1.00000E+00|" + BLANK25 + "    3.14159E+01    1.00000E+00|" + BLANK25 +
                "    1.57080E+02    2.00000E+00");
}

TEST_F(usfos_export, SkinForceLevelsAndSmallFactors) {
  make_profile({2.0}, 1);
  cmn.ZSEAFL = 5.0;
  cmn.ZBOTM(1) = 7.0;
  int IERR = 0;
  G2USFOS(cmn, cmn.DIAM, 1.0, 0.0005, 2, 9, IERR);
  const lines_of_text all = unit("09");
  EXPECT_EQ(all[2], " SOILCHAR    2000      1  -0.500E+01   0.200E+01   0.100E+01   0.500E-03");
  EXPECT_EQ(all[5], BLANK20 + "        0.00       -2.00   2000011   2000012   2000013");
  // Behind the P-Y curve of 29 points: 2 * 3.14159 * -140.
  EXPECT_EQ(rows(all, 38, 2), " ELPLCURV   2000012|" + BLANK25 + "   -8.79645E+02   -1.40000E-01");
}

TEST_F(usfos_export, MaterialsAreRankedAndDuplicatesRefused) {
  std::vector<usfos_material> materials;
  for (const int number : {30, -5, 10, 0, -7, 10, 20})
    materials.push_back({number, 2, {4, 0, 0, 0, 0, 0, 0, 0}});
  materials[2].record[0] = 2;  // the first of the two with number 10
  materials[4].type = 4;
  EXPECT_FALSE(UWRMAT(cmn, 9, materials));
  const lines_of_text all = unit("09");
  EXPECT_EQ(all[0], "# WARNING from UWRMAT: Materials missing ! ");
  EXPECT_EQ(rows(all, 3),
            " HYPELAST        10||  *** ERROR IN UWRMAT ***| ELPLCURV        20|"
            " ELPLCURV        30| ELPLCURV        -7| ELPLCURV        -5");
}

TEST_F(usfos_export, DiametersThatRoundAlikeFailButTheInterfaceFileIsWritten) {
  make_corners({2.0, 2.0004}, 1);
  OutputFiles(cmn, 1);
  EXPECT_EQ(cmn.IERR, -1);
  EXPECT_EQ(rows(unit("09"), unit("09").size() - 4),
            "|  *** ERROR IN G2U_WMAT ***||  *** ERROR IN G2USFOS ***");
  EXPECT_EQ(unit("08").back(), "          0.10000000E+01  0.15714234E+03");
  cmn.ZTQZ(2) = 0.0;  // a failure of the interface file overrides
  OutputFiles(cmn, 2);
  EXPECT_EQ(cmn.IERR, 1);
  cmn.RIFWRITER.reset();
  EXPECT_EQ(lines("TERVAK.RIF").at(9).substr(0, 8), "RDSOILDI");
}

TEST_F(usfos_export, LimitCountsEmptyMaterials) {
  int IERR = 0;
  G2U_WMAT(cmn, 7, 1, std::vector<usfos_material>(5000), IERR);
  EXPECT_EQ(IERR, 0);
  G2U_WMAT(cmn, 7, 3, {}, IERR);  // no such mode
  EXPECT_EQ(IERR, -1);
  make_corners({1.0, 2.0}, 900);  // 5400 materials, 2700 a diameter
  IERR = 0;
  G2USFOS(cmn, cmn.DIAM, 1.0, 1.0, 1, 8, IERR);
  EXPECT_EQ(IERR, -1);
  EXPECT_EQ(
      rows(unit("08"), 2 * (5 + 900)),
      "|  *** ERROR IN G2U_WMAT ***||  *** Number of Materials Exceeds Max of 5000||  *** ERROR IN G2USFOS ***");
}

TEST_F(usfos_export, ExceptionOutOfTheExportEndsTheRun) {
  make_corners({3.0E6}, 1);  // material numbers beyond an int
  try {
    OutputFiles(cmn, 1);
    FAIL() << "no exception";
  } catch (const std::runtime_error& failure) {
    EXPECT_STREQ(failure.what(), "Invalid FORMAT specification: ********warningusfosexportfailed");
  }
  cmn.RIFWRITER.reset();
  EXPECT_EQ(lines("TERVAK.RIF").size(), 7u);  // heading and closing record
  EXPECT_EQ(unit("18"), lines_of_text{});
}

}  // namespace
}  // namespace tervak
