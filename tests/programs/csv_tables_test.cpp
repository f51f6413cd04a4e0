#include <gtest/gtest.h>

#include <sstream>

#include "programs/sample_rif.hpp"
#include "report/csv_tables.hpp"
#include "report/curve_points.hpp"
#include "report/json_tree.hpp"
#include "report/read_interface_file.hpp"

namespace tervak::report {
namespace {

std::pair<std::size_t, std::size_t> kept(const std::vector<std::pair<double, double>>& points) {
  curve c;
  for (const auto& [stress, displacement] : points) c.push_back({stress, displacement});
  return points_before_filler(c, false);
}

TEST(CurvePoints, Filler) {
  using range = std::pair<std::size_t, std::size_t>;
  EXPECT_EQ(kept({{-1, -12}, {-1, -11}, {-1, -10}, {0, 0}, {2, 10}, {2, 11}, {2, 12}}), range(2, 5));
  EXPECT_EQ(kept({{0, -11}, {0, -10}, {0, -9}, {0, 0}, {2, 10}, {2, 11}, {3, 12}}), range(0, 7))
      << "a last stress of its own";
  EXPECT_EQ(kept({{-1, -12}, {-1, -11}, {-1, -9}, {0, 0}, {2, 9}, {2, 10}, {2, 11}}), range(1, 6))
      << "as many at both ends";
  EXPECT_EQ(kept({{-2, -1524001.23}, {-2, -1524000.24}, {0, 0}, {2, 1524000.24}, {2, 1524001.23}}),
            range(1, 4))
      << "nine digits";
  EXPECT_EQ(kept({}), range(0, 0));
}

TEST(CsvTables, QuotesAndNumbers) {
  interface_file file = read_interface_file("T.RIF", std::istringstream(sample::rif({1, 3, 2, true})));
  file.profiles[0].name = "A, \"B\"\xF8";
  const std::vector<csv_file> files = csv_files(file, {}, {false, {"kN", "m"}});
  ASSERT_EQ(files.size(), 5U);
  const std::string layer =
      "1,\"A, \"\"B\"\"ø\",2,2,1.5,0.5,sand,9,34.5,0,4.2,0,0.300000012,13650,5250,284,293,293\r\n";
  EXPECT_NE(files[0].text.find("\r\n" + layer), std::string::npos) << files[0].text;
  // P-Y of layer 2 at D = 2: half of 32 at 0.01, times the diameter; then its far point and no filler.
  EXPECT_NE(files[1].text.find("\r\n1,2,1.5,2,py,284,API-84,16,0.01,16,32\r\n"), std::string::npos);
  EXPECT_NE(files[1].text.find(",py,284,API-84,20,2000,32,64\r\n1,2,1.5,2,tz,"), std::string::npos);
  EXPECT_NE(files[1].text.find(",tz,293,API-93,16,0.0032,4.2,\r\n"), std::string::npos);
  EXPECT_NE(files[3].text.find("\r\n1,3,1,bsy,16,0.01,25\r\n"), std::string::npos);
  EXPECT_EQ(files[3].text.find("\r\n1,2,1,bsy"), std::string::npos) << "no curve there";
  EXPECT_NE(files[4].text.find("curves.csv,stress,kN/m2\r\n"), std::string::npos);
  EXPECT_NE(csv_files(file, {}, {true, {}}).at(1).text.find(",py,284,API-84,29,2009,32,64\r\n"),
            std::string::npos);
}

TEST(CsvTables, WhatCannotBeGivenIsEmpty) {
  interface_file file = read_interface_file("T.RIF", std::istringstream(sample::rif({1, 2, 1})));
  file.profiles[0].layers[1].tz_code = 100;
  EXPECT_NE(csv_files(file, {}, {}).at(2).text.find("\r\n1,1,2,,,98.9601686,,\r\n"), std::string::npos)
      << "126 pi / 4";
  EXPECT_NE(
      json_tree(file, {}, {}).find("\"level\":2,\"skin_compression\":null,\"skin_tension\":null,\"tip\":98."),
      std::string::npos);
}

}  // namespace
}  // namespace tervak::report
