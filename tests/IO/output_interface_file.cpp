#include <cmath>
#include <ctime>
#include <iomanip>
#include <limits>
#include <sstream>

#include "IO/DataGroup.hpp"
#include "IO/TervakRIFWriter.hpp"
#include "output_support.hpp"

namespace tervak {
namespace {

using Varno::TervakLibrary::IO::TervakRIFWriter;

std::string record(const std::string& name, const std::vector<double>& values) {
  std::ostringstream stream;
  ::IO::Tormal::write_record(stream, name, values);
  return stream.str();
}

/// Fields one behind the other, as a stream of the language renders them.
std::string fields(const std::vector<double>& values) {
  std::ostringstream text;
  text << std::scientific << std::uppercase << std::setprecision(8);
  for (const double value : values) text << std::setw(16) << value;
  return text.str();
}

TEST(record, FourFieldsALineOfAnUppercaseScientificStream) {
  EXPECT_EQ(record("NONE    ", {}), "NONE    ");
  EXPECT_EQ(record("FOUR    ", {1.0, -2.5, 0.0, -0.0}),
            "FOUR      1.00000000E+00 -2.50000000E+00  0.00000000E+00 -0.00000000E+00\n");
  EXPECT_EQ(record("FIVE    ", {1.0E+100, -1.0E+100, 0.0, 0.0, 7.0}),
            "FIVE     1.00000000E+100-1.00000000E+100  0.00000000E+00  0.00000000E+00\n"
            "          7.00000000E+00\n");
  constexpr double INF = std::numeric_limits<double>::infinity();
  std::vector<double> values = {std::nan(""), -std::nan(""),  INF,        -INF,
                                5.0E-324,     0.000122070315, 999999999.5};
  for (double value = 1.0 / 3.0; values.size() < 600;) values.push_back(value *= -1.7);
  for (const double value : values) EXPECT_EQ(record("", {value}), fields({value}) + "\n");
}

TEST(record, DateLinesAreOfTwoHalves) {
  fem::fixed_text<10> name, version;
  fem::fixed_text<11> date;
  name.assign("Tervak");
  version.assign("7.6.1.2134");  // loses its tenth character
  date.assign("19-FEB-2021");
  const auto clock = [](std::time_t now) {
    std::ostringstream line;
    line << std::put_time(std::localtime(&now),
                          "        DATE:     %d-%b-%Y         TIME:         %T            ");
    return line.str();
  };
  const std::string before = clock(std::time(nullptr));
  const lines_of_text text = ::IO::Tormal::make_date_record(name, version, date)->text_lines();
  EXPECT_EQ(text.at(0), "        PROGRAM:  HALDE Tervak        VERSION:      7.6.1.21319-FEB-2021");
  EXPECT_TRUE(text.at(1) == before || text.at(1) == clock(std::time(nullptr))) << text.at(1);
  EXPECT_EQ(text.at(2).substr(0, 18) + text.at(2).substr(38, 14), "        COMPUTER: INSTALLATION: ");
  EXPECT_EQ(text.at(3).substr(0, 18) + text.at(3).substr(38, 14), "        USER:     ACCOUNT:      ");
  EXPECT_EQ(text.at(2).size() + text.at(3).size(), 144u);
}

struct interface_file : output_test {
  lines_of_text write(bool good = true) {
    EXPECT_EQ(TervakRIFWriter().WriteProfile(cmn, 7), good);
    return lines("TERVAK.RIF");
  }
  /// The n-th record of that name, without its name, as one line.
  static std::string find(const lines_of_text& all, const std::string& name, int n = 1) {
    std::string found;
    for (const std::string& line : all) {
      if (line[0] != ' ') n -= n == 0 || line.substr(0, 8) == name ? 1 : 0;
      if (n == 0) found += line.substr(8);
    }
    return found;
  }
  static std::string names(const lines_of_text& all) {
    std::string found;
    for (const std::string& line : all) found += line[0] == ' ' ? "" : line.substr(0, line.find(' ') + 1);
    return found;
  }
};

TEST_F(interface_file, HeadingAndClosingRecordStandOnceAroundAllProfiles) {
  make_profile({1.0, 2.0}, 3);
  cmn.NUMDSP = 2;
  cmn.DSPLEV = cmn.DSPX = cmn.DSPY = cmn.DSPZ = {0.0, 2.0};
  cmn.HOLDIA = {0.0, 0.5};
  cmn.RIFWRITER = std::make_shared<TervakRIFWriter>();
  EXPECT_TRUE(cmn.RIFWRITER->WriteProfile(cmn, 1));
  cmn.REVISION = 4;
  EXPECT_TRUE(cmn.RIFWRITER->WriteProfile(cmn, 2));
  cmn.RIFWRITER.reset();
  const lines_of_text all = lines("TERVAK.RIF");
  std::string profile = "TSOILPRF RDSOILDI RDSOILDI RDSOIPRF RDSOIDSP RDSOIDSP RVSOILAY RVSOILAY RVSOILAY ";
  for (int i = 0; i < 6; ++i) profile += "RVSOILPY RVSOILQZ RVSOILTZ ";
  EXPECT_EQ(names(all), "IDENT DATE " + profile + profile + "IEND ");
  EXPECT_EQ(all[0], "IDENT     1.00000000E+00  1.00000000E+00  0.00000000E+00");
  EXPECT_EQ(all[1], "DATE      1.00000000E+00  0.00000000E+00  4.00000000E+00  7.20000000E+01");
  EXPECT_EQ(all[2], "        PROGRAM:  HALDE Tervak        VERSION:      7.6.1.21 19-FEB-2021");
  EXPECT_EQ(all[6], "TSOILPRF" + fields({4, 1, 110, 180}));
  EXPECT_EQ(all[7] + all[8], "        BORING 7          TWO PILES IN SAND" + std::string(63, ' '));
  EXPECT_EQ(find(all, "TSOILPRF", 2).substr(0, 85), fields({4, 2, 121, 180}) + "No given profile name");
  EXPECT_EQ(find(all, "RDSOILDI", 2), fields({4, 1, 2, 2}));
  EXPECT_EQ(find(all, "RDSOIDSP", 2), fields({8, 1, 2, 2, 2, 2, 2, 0.5}));
  EXPECT_EQ(find(all, "RVSOILTZ", 2).substr(0, 64),
            fields({66, 1, 2, 1}));  // layers outside, diameters inside
  EXPECT_EQ(all.back(), "IEND    " + fields({0, 0, 0, 0}));
}

TEST_F(interface_file, ProfileAndLayerRecordsOfBothRevisions) {
  make_profile({1.0}, 2);
  std::tie(cmn.ZSEAFL, cmn.SCRGEN, cmn.POSAVR) = std::tuple(5.0, 0.5, 0.25);
  std::tie(cmn.ESOL0, cmn.ESOL1, cmn.ESOL2) = std::tuple(1000.0, 20.0, 1.0);
  cmn.LAYCOD(1) = {1, 284, 293, 200};
  cmn.DEPTH(1) = 0.5;
  cmn.GAMEFF(1) = 8.25;
  cmn.SURED(1) = 50.0;
  cmn.SURED(2) = cmn.EPS;
  cmn.SIGZRES(1) = 9.5;
  cmn.DSIGZ(1) = 0.75;
  cmn.GSOIL(1) = 2000.0;
  cmn.G0SOIL = {1000.0, 2000.0};  // 1001 at the level of 1
  cmn.POIS = {0.25, 0.25};
  lines_of_text all = write();
  EXPECT_EQ(find(all, "RDSOIPRF"), fields({13, 7, 20090901, 5, 0.5, 2, 2, 0, 1, 1000, 20, 1, 0.25}));
  EXPECT_EQ(find(all, "RVSOILAY"),
            fields({17, 7, 1, 2, 1, 0.5, 8.25, 35, 50, 9.5, 0.75, 0.5, 6000, 2000, 284, 293, 200}));
  EXPECT_EQ(find(all, "RVSOILAY", 2).substr(176, 16), "  3.00000012E-01");
  cmn.REVISION = 4;
  all = write();
  EXPECT_EQ(find(all, "RDSOIPRF"), fields({13, 7, 0, 5, 0.5, 2, 0, 0, 1, 1000, 20, 1, 0.25}));
  EXPECT_EQ(find(all, "RVSOILAY").substr(176, 48), fields({0.25, 2502.5, 1001}));
  cmn.ZTQZ(2) = 0.0;
  EXPECT_EQ(names(write(false)), "IDENT DATE TSOILPRF RDSOILDI RDSOIPRF IEND ");
}

TEST_F(interface_file, CurveRecordsCarryTheExtremesOfAllSlots) {
  constexpr double INF = std::numeric_limits<double>::infinity();
  make_profile({2.0}, 1);
  cmn.OPEN(1) = 1;
  cmn.NPYPNT(1, 1) = 0;
  cmn.PYDSP(2, 1, 1) = cmn.PYDSP(1, 1, 1);  // an infinite slope
  cmn.NTZPNT(1, 1) = 2;
  cmn.TZSTR(1, 1, 1) = -0.0;
  cmn.TZSTR(28, 1, 1) = cmn.TZSTR(29, 1, 1);
  cmn.TZDSP(28, 1, 1) = cmn.TZDSP(29, 1, 1);  // 0 / 0, which is passed over
  for (int P = 2; P <= 29; ++P) cmn.QZSTR(P, 1, 1) = cmn.QZSTR(P - 1, 1, 1) - 1.0;  // falls throughout
  const lines_of_text all = write();
  EXPECT_EQ(find(all, "RVSOILPY"), fields({8, 7, 1, 1, 1400, INF, 1, 0}));
  EXPECT_EQ(find(all, "RVSOILTZ"), fields({12, 7, 1, 1, 140, 1000, -130, 2, -0.0, -0.14, -130, -0.13}));
  const std::string qz = find(all, "RVSOILQZ");
  ASSERT_EQ(qz.size(), 66u * 16u);
  EXPECT_EQ(qz.substr(0, 160), fields({66, 7, 1, 1, -14000, 0, -14028, 29, -14000, -0.14}));
  cmn.OPEN(1) = 2;
  EXPECT_EQ(find(write(), "RVSOILPY"), fields({8, 7, 1, 1, 1400, INF, 0, 0}));
}

TEST_F(interface_file, MonopileRecordsStandLastForceFirst) {
  make_profile({1.0, 2.0}, 1);
  const auto data = std::make_shared<monopile_curves>();
  data->mtheta = {{0.5, 200.0}, {1.0, 300.0}};
  data->bmtheta = {{0.25, 3000.0}};
  data->bsy = {{0.125, 40000.0}};
  cmn.MONOPILE = data;
  const lines_of_text all = write();
  EXPECT_NE(names(all).find("TZ RVSOILBM RVSOILDM RVSOILBS RVSOILBM RVSOILDM RVSOILBS IEND "),
            std::string::npos);
  EXPECT_EQ(find(all, "RVSOILDM", 2), fields({9, 7, 2, 1, 2, 200, 0.5, 300, 1}));
  EXPECT_EQ(find(all, "RVSOILBM"), fields({7, 7, 1, 1, 1, 3000, 0.25}));
  EXPECT_EQ(find(all, "RVSOILBS"), fields({7, 7, 1, 1, 1, 40000, 0.125}));
}

}  // namespace
}  // namespace tervak
