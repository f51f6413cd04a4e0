#include <stdexcept>

#include "IO/PRINT.hpp"
#include "IO/PRINT_labels.hpp"
#include "output_support.hpp"

namespace tervak {
namespace {

const std::string HEAD =
    " TERVAK Output   Program Version = 7.6.1.21   19-FEB-2021     Time = 05-MAR-2024  09:08:07";
const std::string LABEL = "| TWO PILES IN SAND" + std::string(63, ' ') + "||";

struct listing : output_test {
  /// The lines behind the last page head; `pages` counts the heads.
  lines_of_text last_page(int JPRINT) {
    cmn.JPRINT = JPRINT;
    ++cmn.NFLIS;  // a fresh file
    std::string version = "7.6.1.21  ", date = "19-FEB-2021";
    PRINT(cmn, {version.data(), 10}, {date.data(), 11}, {2024, 2, 5, 9, 8, 7});
    const lines_of_text all = lines("fem_io_unit_0" + std::to_string(cmn.NFLIS));
    EXPECT_EQ(rows(all, 0, 3), "|1|" + HEAD);
    pages = std::count(all.begin(), all.end(), HEAD);
    return {std::find(all.rbegin(), all.rend(), HEAD).base(), all.end()};
  }
  std::ptrdiff_t pages = 0;
};

TEST_F(listing, SummaryKeepsSoilTypesInBlocks) {
  make_profile({1.0}, 3);
  cmn.LAYCOD(3) = {2, 0, 103, 7};
  std::tie(cmn.DEPTH(3), cmn.GAMEFF(3), cmn.PHIR(3)) = std::tuple(4.5, 8.25, 0.0);
  std::tie(cmn.SURED(3), cmn.SIGZRES(3), cmn.DSIGZ(3)) = std::tuple(75.25, 123.75, 10.5);
  cmn.MIDBOT = 2;
  EXPECT_EQ(rows(last_page(1), 0),
            LABEL +
                " SUMMARY OF LAYER DATA| *********************||"
                " LAY TYP   ZBOTM    ZLAY   DEPTH GAMEFF   PHIR   SURED     SIGZRES   DSIGZ   PY  TZ  QZ| |"
                "  1   1    2.00    1.00    0.00     0.00  35.0      0.0        0.0    0.00  284 200 200|"
                "  2   1    4.00    3.00    0.00     0.00  35.0      0.0        0.0    0.00  284 200 200| |"
                "  3   2    6.00    5.00    4.50     8.25   0.0     75.2      123.8   10.50  000 103 007||"
                " P-Y AND T-Z DATA TO BE GENERATED AT LAYER BOTTOM");
  cmn.MIDBOT = 1;
  EXPECT_EQ(last_page(1).back(), " P-Y AND T-Z DATA TO BE GENERATED AT LAYER MID POINT");
  cmn.MIDBOT = 0;
  EXPECT_EQ(last_page(1).size(), 12u);
}

TEST_F(listing, CurvePagesOfSandAndClay) {
  make_profile({1.0, 2.5}, 3);
  cmn.PYDSP(29, 2, 3) = 1.0E+100;
  cmn.ZCYCL = 5.1;
  const lines_of_text sand = last_page(2);
  EXPECT_EQ(pages, 7);
  EXPECT_EQ(rows(sand, 0, 13),
            LABEL +
                " COMPLETE P-Y / T-Z / Q-Z RESULTS    LAYER :  3  DEPTH :    0.00  DIAM :  2.500|"
                " ********************************                ZBOTM :    6.00||"
                " SOIL TYPE : SAND   PHI = 35.0 DEGR   GAMEFF =     0.00   CYCLIC P-Y||"
                "           PY-CODE= 284    API-84    TZ-CODE= 200    KRAFT     QZ-CODE= 200    ELAPLA||"
                "   POINT   PY-STRESS  PY-DISPLC    TZ-STRESS  TZ-DISPLC    QZ-STRESS  QZ-DISPLC| |"
                "     1    -1.400E+03 -1.400E-01   -1.400E+02 -1.400E-01   -1.400E+04 -1.400E-01");
  EXPECT_EQ(rows(sand, 26, 3),
            " |    15     0.000E+00  0.000E+00    0.000E+00  0.000E+00    0.000E+00  0.000E+00| ");
  EXPECT_EQ(rows(sand, 42),
            "    29     1.400E+03  1.000+100    1.400E+02  1.400E-01    1.400E+04  1.400E-01");
  std::tie(cmn.ZCYCL, cmn.PHIR(3), cmn.SURED(3), cmn.EPS50(1)) =
      std::tuple(cmn.ZLAY(3), cmn.EPS, 62.5, 0.0125);
  cmn.LAYCOD(3) = {1, 588, 214, 0};
  EXPECT_EQ(rows(last_page(2), 6, 3),
            " SOIL TYPE : CLAY   SU =    62.5  GAMEFF =     0.00  EPS50 = 0.0125  STATIC P-Y||"
            "           PY-CODE= 588    ?????     TZ-CODE= 214  API-2014    QZ-CODE= 000    MANUAL");
}

TEST(labels, ByCurveAndCode) {
  const struct {
    const char* (*label)(int);
    std::vector<int> codes;
    const char* expected;
  } table[] = {{PY_label, {284, 287, 214, 380, 404}, "API-84 API-87 API-2014 VRK-80 ISO-04 "},
               {PY_label, {570, 588, 600, 99, 101}, "ModMat ?????  NGI-11 MANUAL AUTO-1 "},
               {TZ_label, {200, 214, 293, 588, 0, 100}, "KRAFT  API-2014 API-93 ?????  MANUAL LINEAR "},
               {QZ_label, {200, 214, 293, 102, 103}, "ELAPLA API-2014 API-93 AUTO-2 AUTO-3 "}};
  for (const auto& row : table) {
    std::string labels;
    for (const int code : row.codes) labels += std::string(row.label(code)) + " ";
    EXPECT_EQ(labels, row.expected);
  }
  EXPECT_THROW(QZ_label(588), std::out_of_range);
}

TEST_F(listing, MonopileKindsInOneTableOrEachInTheirs) {
  make_profile({1.0, 2.0}, 3);
  const auto data = std::make_shared<monopile_curves>();
  cmn.MONOPILE = data;
  EXPECT_EQ(last_page(2), lines_of_text{});
  EXPECT_EQ(pages, 13);  // summary, six pages of curves, six heads with nothing below
  data->mtheta.assign(15, {0.5, 200.0});
  data->bsy = data->bmtheta = {{0.25, 3000.0}};
  EXPECT_THROW(last_page(2), std::out_of_range);
  data->bsy.assign(15, {0.125, 40000.0});
  data->bmtheta.assign(16, {0.25, 3000.0});
  const lines_of_text page = last_page(2);
  EXPECT_EQ(rows(page, 0, 7),
            LABEL +
                " COMPLETE M-THETA / BS-Y / BM-THETA RESULTS    LAYER :  3  DEPTH :    0.00  DIAM :  2.000|"
                " ******************************************                ZBOTM :    6.00|"
                "   POINT   MTHE-DMOM  MTHET-ROT    BSY-FORCE  BSY-DISPL    BMTHE-MOM  BMTHE-ROT| ");
  EXPECT_EQ(rows(page, 21),
            " |    15     2.000E+02  5.000E-01    4.000E+04  1.250E-01    3.000E+03  2.500E-01| ");
  data->mtheta.resize(1);
  data->bsy.resize(1);
  data->bmtheta.clear();
  EXPECT_EQ(rows(last_page(2), 0),
            LABEL +
                " COMPLETE M-THETA RESULTS    LAYER :  3  DEPTH :    0.00  DIAM :  2.000|"
                " ************************                ZBOTM :    6.00|   POINT  MTHET-DMOM  MTHET-ROT| |"
                "     1     2.000E+02  5.000E-01|" +
                LABEL +
                " COMPLETE BS-Y RESULTS    LAYER :  3  DEPTH :    0.00  DIAM :  2.000|"
                " *********************                ZBOTM :    6.00|   POINT   BSY-FORCE  BSY-DISPL| |"
                "     1     4.000E+04  1.250E-01");
  data->mtheta.clear();
  data->bmtheta = {{0.25, 3000.0}};
  EXPECT_EQ(rows(last_page(2), 8),
            LABEL +
                " COMPLETE BM-THETA RESULTS    LAYER :  3  DEPTH :    0.00  DIAM :  2.000|"
                " *************************                ZBOTM :    6.00|   POINT   BMTHE-MOM  BMTHE-ROT| |"
                "     1     3.000E+03  2.500E-01");
}

TEST_F(listing, SoilDisplacementsStandLastWithoutTheLabel) {
  make_profile({1.0}, 1);
  cmn.NUMDSP = 1;
  allocate_input_tables(cmn);
  std::tie(cmn.DSPLEV(1), cmn.DSPX(1), cmn.DSPY(1)) = std::tuple(12.5, 0.25, -0.5);
  std::tie(cmn.DSPZ(1), cmn.HOLDIA(1)) = std::tuple(1234.5, 3.0);
  EXPECT_EQ(rows(last_page(2), 0),
            "|" + std::string(81, ' ') +
                "|| GIVEN SOIL DISPLACEMENTS AND OPEN HOLE| **************************************||"
                " POINT  Z-LEVEL    DISPL-X     DISPL-Y     DISPL-Z   OPEN HOLE DIAM|"
                "   1     12.500   2.500E-01  -5.000E-01   1.235E+03   3.000E+00");
}

}  // namespace
}  // namespace tervak
