// What the driver does that no deck can bring about, and the run's identification.

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "Control/curve_dispatch.hpp"
#include "Control/identification.hpp"
#include "fem/write.hpp"
#include "support/small_layer.hpp"

#include <gtest/gtest.h>

namespace tervak {
namespace {

TEST(CurveDispatch, ACodeOutsideTheTablesEndsTheRunWithTheErrorWordAtZero) {
  struct row {
    layer_code code;
    const char* line;
  };
  const row rows[] = {
      {{1, 293, 293, 293}, "\r\n **** SR/CONTRL  INVALID P-Y CODE  293\r\n"},
      {{1, 104, 293, 293}, "\r\n **** SR/CONTRL  INVALID P-Y CODE  104\r\n"},
      {{1, -1, 293, 293}, "\r\n **** SR/CONTRL  INVALID P-Y CODE   -1\r\n"},
      {{1, 284, 199, 293}, "\r\n **** SR/CONTRL  INVALID T-Z CODE  199\r\n"},
      {{1, 284, 293, 104}, "\r\n **** SR/CONTRL  INVALID Q-Z CODE  104\r\n"},
  };
  for (const row& r : rows) {
    small_layer layer;
    layer.cmn.SURED(1) = 40.0;
    layer.cmn.LAYCOD(1) = r.code;
    EXPECT_FALSE(make_curves(layer.cmn, 1));
    EXPECT_EQ(layer.cmn.IERR, 0);
    EXPECT_EQ(layer.log(), r.line);
  }
}

TEST(CurveDispatch, AMethodThatFailsIsReportedWithLayerAndDiameter) {
  small_layer layer;
  layer.cmn.SURED(1) = 40.0;
  layer.cmn.GSOIL(1) = 1000.0;
  layer.cmn.LAYCOD(1) = {1, 284, 293, 999};
  EXPECT_FALSE(make_curves(layer.cmn, 1));
  EXPECT_EQ(layer.cmn.IERR, 1);
  EXPECT_EQ(layer.log(),
            "\r\n **** SR/QZMISC : ICODE IS NOT 200, 214 OR 293  ICODE =  999\r\n"
            "\r\n **** SR/CONTRL  Q-Z DATA PROBLEM  IERR,LAYER,PILE=    1    1    1\r\n");
}

TEST(Identification, TheBannerHoldsNameTitleFrameAndDetails) {
  small_layer layer;
  fem::fixed_text<10> name, version, spare1;
  fem::fixed_text<100> title, spare2;
  fem::fixed_text<11> date;
  version_texts(name, title, version, spare1, spare2, date);
  banner(layer.cmn, layer.cmn.NFLOG, name, title, version, date, {2024, 2, 5, 9, 7, 3});

  std::vector<std::string> rows;
  const std::string log = layer.log();
  for (std::size_t at = 0, end = 0; (end = log.find("\r\n", at)) != std::string::npos; at = end + 2)
    rows.push_back(log.substr(at, end - at));
  ASSERT_EQ(rows.size(), 34U);
  const auto blank = [&](int row) { return rows.at(static_cast<std::size_t>(row - 1)) == " "; };
  for (const int row : {1, 2, 3, 14, 15, 23, 24, 25, 31, 34}) EXPECT_TRUE(blank(row)) << row;
  for (int row = 4; row <= 13; ++row)
    EXPECT_EQ(rows.at(static_cast<std::size_t>(row - 1)).find_first_not_of(" *"), std::string::npos) << row;
  EXPECT_EQ(rows[3].find('*'), 6U);
  EXPECT_EQ(rows[15], std::string(14, ' ') + std::string(50, '*'));
  EXPECT_EQ(rows[17],
            std::string(14, ' ') + "*" + std::string(18, ' ') + "T e r v a k" + std::string(19, ' ') + "*");
  EXPECT_EQ(rows[19], std::string(14, ' ') + "*    Structure/Pile/Soil Interaction Analysis    *");
  EXPECT_EQ(rows[21], rows[15]);
  EXPECT_EQ(rows[25].substr(0, 60), "  Program id   : Tervak    7.6.1.21       Computer         :");
  EXPECT_EQ(rows[26], "  Release date : 19-FEB-2021              Impl. update     :");
  EXPECT_EQ(rows[27].substr(0, 61), "  Access time  : 05-MAR-2024  09:07:03    Operating system : ");
  EXPECT_EQ(rows[28].substr(42), "CPU id           : 0000000000");
}

TEST(Identification, StampsShowTwoDigitsAndTheEndStampIsAlwaysInJanuary) {
  small_layer layer;
  int out = 7;
  time_array time{};
  run_stamp(layer.cmn, 1, layer.cmn.NFLOG, 0, out, time);
  run_stamp(layer.cmn, 2, layer.cmn.NFLOG, layer.cmn.NFLOG, out, time);
  run_stamp(layer.cmn, 3, layer.cmn.NFLOG, 0, out, time);
  EXPECT_EQ(out, 0);
  std::string log = layer.log();
  std::replace_if(
      log.begin(), log.end(), [](char c) { return c >= '0' && c <= '9'; }, '9');
  const std::string start =
      std::string("\r\n THIS RUN WAS STARTED :  99-") + month_name(time[1]) + "-9999  AT  99:99:99 HOURS\r\n";
  const std::string end = "\r\n THIS RUN WAS TERMINATED :  99-JAN-9999  AT  99:99:99 HOURS\r\n";
  EXPECT_EQ(log, start + end + end);
  EXPECT_GE(time[0], 2024);
}

}  // namespace
}  // namespace tervak
