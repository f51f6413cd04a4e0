// What the driver does that no deck can bring about, and what golden outputs mask of the run's
// identification.

#include <algorithm>
#include <cctype>
#include <string>

#include "Control/run/curve_dispatch.hpp"
#include "Control/state/identification.hpp"
#include "support/small_layer.hpp"

#include <gtest/gtest.h>

namespace tervak {
namespace {

TEST(CurveDispatch, BadCodesAndFailedMethodsEndTheRun) {
  struct row {
    layer_code code;
    const char* log;
    int IERR = 0;
  };
  const row rows[] = {
      {{1, 293, 293, 293}, "\r\n **** SR/CONTRL  INVALID P-Y CODE  293\r\n"},
      {{1, 104, 293, 293}, "\r\n **** SR/CONTRL  INVALID P-Y CODE  104\r\n"},
      {{1, -1, 293, 293}, "\r\n **** SR/CONTRL  INVALID P-Y CODE   -1\r\n"},
      {{1, 284, 199, 293}, "\r\n **** SR/CONTRL  INVALID T-Z CODE  199\r\n"},
      {{1, 284, 293, 104}, "\r\n **** SR/CONTRL  INVALID Q-Z CODE  104\r\n"},
      {{1, 284, 293, 999},
       "\r\n **** SR/QZMISC : ICODE IS NOT 200, 214 OR 293  ICODE =  999\r\n"
       "\r\n **** SR/CONTRL  Q-Z DATA PROBLEM  IERR,LAYER,PILE=    1    1    1\r\n",
       1},
  };
  for (const row& r : rows) {
    small_layer layer;
    layer.cmn.SURED(1) = 40.0;
    layer.cmn.GSOIL(1) = 1000.0;
    layer.cmn.LAYCOD(1) = r.code;
    EXPECT_FALSE(make_curves(layer.cmn, 1));
    EXPECT_EQ(layer.cmn.IERR, r.IERR);
    EXPECT_EQ(layer.log(), r.log);
  }
}

TEST(Identification, TheBannerShowsTheAccessTimeAndATitleOf80Letters) {
  small_layer layer;
  fem::fixed_text<10> text;
  fem::fixed_text<80> title;
  title.assign(std::string(80, 'a'));
  banner(layer.cmn, layer.cmn.NFLOG, text, title, text, text, {2024, 2, 5, 9, 7, 3});
  const std::string letters = "*" + std::string(78, 'a') + "    *\r\n";  // columns 0 and 1 are lost
  const std::string time = "\r\n  Access time  : 05-MAR-2024  09:07:03    Operating system : ";
  for (const std::string& shown : {letters, time, std::string("  CPU id           : 0000000000\r\n")})
    EXPECT_NE(layer.log().find(shown), std::string::npos) << layer.log();
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
      log.begin(), log.end(), [](unsigned char c) { return std::isdigit(c) != 0; }, '9');
  const std::string month = month_name(time[1]), behind = "-9999  AT  99:99:99 HOURS\r\n";
  const std::string end = "\r\n THIS RUN WAS TERMINATED :  99-JAN" + behind;
  EXPECT_EQ(log, "\r\n THIS RUN WAS STARTED :  99-" + month + behind + end + end);
  EXPECT_GE(time[0], 2024);
}

}  // namespace
}  // namespace tervak
