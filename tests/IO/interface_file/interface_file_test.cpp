#include <cmath>
#include <ctime>
#include <iomanip>
#include <limits>
#include <sstream>

#include "IO/interface_file/DataGroup.hpp"
#include "IO/interface_file/TervakRIFWriter.hpp"
#include "IO/output_support.hpp"

namespace tervak {
namespace {

using Varno::TervakLibrary::IO::TervakRIFWriter;

constexpr double INF = std::numeric_limits<double>::infinity();

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

TEST(Record, FourFieldsALineOfAnUppercaseScientificStream) {
  EXPECT_EQ(record("NONE    ", {}), "NONE    ");
  EXPECT_EQ(record("FOUR    ", {1.0, -2.5, 0.0, -0.0}),
            "FOUR      1.00000000E+00 -2.50000000E+00  0.00000000E+00 -0.00000000E+00\n");
  EXPECT_EQ(record("FIVE    ", {1.0E+100, -1.0E+100, 0.0, 0.0, 7.0}),
            "FIVE     1.00000000E+100-1.00000000E+100  0.00000000E+00  0.00000000E+00\n"
            "          7.00000000E+00\n");
  EXPECT_EQ(record("", {std::nan(""), -std::nan("")}), "             NAN             NAN\n");
  std::vector<double> values = {INF, -INF, 5.0E-324, 0.000122070315, 999999999.5};
  for (double value = 1.0 / 3.0; values.size() < 600;) values.push_back(value *= -1.7);
  for (const double value : values) EXPECT_EQ(record("", {value}), fields({value}) + "\n");
}

TEST(Record, DateLinesAreOfTwoHalves) {
  std::string name = "Tervak    ", version = "7.6.1.2134", date = "19-FEB-2021";
  const auto clock = [](std::time_t now) {
    std::ostringstream line;
    line << std::put_time(std::localtime(&now),
                          "        DATE:     %d-%b-%Y         TIME:         %T            ");
    return line.str();
  };
  const std::string before = clock(std::time(nullptr));
  const std::vector<std::string> text =
      ::IO::Tormal::make_date_record({name.data(), 10}, {version.data(), 10}, {date.data(), 11})
          ->text_lines();
  // The version loses its tenth character.
  EXPECT_EQ(text.at(0), "        PROGRAM:  HALDE Tervak        VERSION:      7.6.1.21319-FEB-2021");
  EXPECT_TRUE(text.at(1) == before || text.at(1) == clock(std::time(nullptr))) << text.at(1);
  EXPECT_EQ(text.at(2).substr(0, 18) + text.at(2).substr(38, 14), "        COMPUTER: INSTALLATION: ");
  EXPECT_EQ(text.at(3).substr(0, 18) + text.at(3).substr(38, 14), "        USER:     ACCOUNT:      ");
  EXPECT_EQ(text.at(2).size() + text.at(3).size(), 144u);
}

struct InterfaceFile : output_test {
  /// The text behind the name of the n-th record of that name, its lines joined.
  std::string written(const std::string& name, int n = 1, bool good = true) {
    EXPECT_EQ(TervakRIFWriter().WriteProfile(cmn, 7), good);
    std::string all = get("TERVAK.RIF");
    for (std::size_t at = 0; (at = all.find("\n        ", at)) != std::string::npos;) all.erase(at, 9);
    std::size_t at = 0;
    for (; n > 0; --n) at = all.find("\n" + name, at) + 1;
    return all.substr(at + 8, all.find('\n', at) - at - 8);
  }
};

TEST_F(InterfaceFile, ElasticValuesOfALayer) {
  make_profile({1.0}, 2);
  cmn.SURED(1) = 50.0;
  cmn.SURED(2) = cmn.EPS;
  cmn.GSOIL(1) = 2000.0;
  cmn.G0SOIL = {1000.0, 2000.0};  // 1001 at the level of 1
  cmn.POIS = {0.25, 0.25};
  EXPECT_EQ(written("RVSOILAY").substr(176, 48), fields({0.5, 6000, 2000}));
  EXPECT_EQ(written("RVSOILAY", 2).substr(176, 16), "  3.00000012E-01");
  cmn.REVISION = 4;
  EXPECT_EQ(written("RVSOILAY").substr(176, 48), fields({0.25, 2502.5, 1001}));
  cmn.ZTQZ(2) = 0.0;  // no span to interpolate in
  EXPECT_EQ(written("RDSOIPRF", 1, false), fields({13, 7, 0, 0, 0, 2, 0, 0, 1, 0, 0, 0, 0}));
  EXPECT_EQ(get("TERVAK.RIF").find("RVSOI"), std::string::npos);
}

TEST_F(InterfaceFile, CurveRecordsCarryTheExtremesOfAllSlots) {
  make_profile({2.0}, 1);
  cmn.OPEN(1) = 1;
  cmn.NPYPNT(1, 1) = 0;
  cmn.PYDSP(2, 1, 1) = cmn.PYDSP(1, 1, 1);  // an infinite slope
  cmn.NTZPNT(1, 1) = 2;
  cmn.TZSTR(1, 1, 1) = -0.0;
  cmn.TZSTR(28, 1, 1) = cmn.TZSTR(29, 1, 1);
  cmn.TZDSP(28, 1, 1) = cmn.TZDSP(29, 1, 1);  // 0 / 0, which is passed over
  for (int P = 2; P <= 29; ++P) cmn.QZSTR(P, 1, 1) = cmn.QZSTR(P - 1, 1, 1) - 1.0;  // falls throughout
  EXPECT_EQ(written("RVSOILPY"), fields({8, 7, 1, 1, 1400, INF, 1, 0}));
  EXPECT_EQ(written("RVSOILTZ"), fields({12, 7, 1, 1, 140, 1000, -130, 2, -0.0, -0.14, -130, -0.13}));
  EXPECT_EQ(written("RVSOILQZ").substr(0, 128), fields({66, 7, 1, 1, -14000, 0, -14028, 29}));
  cmn.OPEN(1) = 2;
  EXPECT_EQ(written("RVSOILPY"), fields({8, 7, 1, 1, 1400, INF, 0, 0}));
}

}  // namespace
}  // namespace tervak
