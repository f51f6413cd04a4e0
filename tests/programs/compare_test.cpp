#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "programs/sample_rif.hpp"
#include "report/compare.hpp"
#include "report/compare_page.hpp"
#include "report/read_interface_file.hpp"

namespace tervak::report {
namespace {

/// Two profiles of one name, of three layers and two diameters.
interface_file sample_file() {
  interface_file file = read_interface_file("T.RIF", std::istringstream(sample::rif({2, 3, 2, true})));
  for (profile& p : file.profiles) p.name = "B";
  return file;
}

/// A line for each difference.
std::string changes(const std::function<void(interface_file&)>& change, double tolerance = 0.1) {
  interface_file after = sample_file();
  change(after);
  std::string out;
  for (const difference& d : compare_files(sample_file(), after, tolerance).differences) {
    out += change_text(d);
    for (const std::string& text : {d.profile, d.layer, d.diameter, d.what, d.before, d.after})
      if (!text.empty()) out += "|" + text;
    out += "\n";
  }
  return out;
}

void scale(curve& c, double factor) {
  for (point& q : c) q.stress *= factor;
}

TEST(Compare, OrdersChanges) {
  // Layer 2 has a Q-Z peak of 9 * 14 = 126 and takes no tension, and an angle of 34.5 degrees.
  EXPECT_EQ(changes([](interface_file& f) {
              layer& l = f.profiles[1].layers[1];
              l.py_code = 214;
              l.PHIR = 34.6;
              l.SURED = 5.0;
              scale(l.of(curve_kind::qz)[0], 0.5);
              scale(l.of(curve_kind::tz)[1], 1.25);
              f.profiles[0].layers.pop_back();
            }),
            "one file|B|3|layer|there|none\n"
            "other|B (2)|2|P-Y code|284 (API-84)|214 (API-2014)\n"
            "from 0|B (2)|2|undrained strength|0|5\n"
            "-50 %|B (2)|2|1|Q-Z peak, compression|126|63\n"
            "-50 %|B (2)|2|1|Q-Z initial stiffness, compression|15750|7875\n"
            "+25 %|B (2)|2|2|T-Z peak, compression|14|17.5\n"
            "+25 %|B (2)|2|2|T-Z peak, tension|12.6|15.75\n"
            "+25 %|B (2)|2|2|T-Z initial stiffness, compression|1312|1641\n"
            "+25 %|B (2)|2|2|T-Z initial stiffness, tension|1181|1477\n"
            "+0.29 %|B (2)|2|friction angle|34.5|34.6\n");
}

TEST(Compare, DrawsOneCodeTogether) {
  EXPECT_EQ(changes([](interface_file& f) {
              for (profile& p : f.profiles)
                for (layer& l : p.layers) l.tz_code = l.qz_code = 214;
              f.profiles[1].layers[1].tz_code = 0;
            }),
            "other|B|1 to 3|T-Z code|293 (API-93)|214 (API-2014)\n"
            "other|B|1 to 3|Q-Z code|293 (API-93)|214 (API-2014)\n"
            "other|B (2)|1|T-Z code|293 (API-93)|214 (API-2014)\n"
            "other|B (2)|1 to 3|Q-Z code|293 (API-93)|214 (API-2014)\n"
            "other|B (2)|2|T-Z code|293 (API-93)|0 (MANUAL)\n"
            "other|B (2)|3|T-Z code|293 (API-93)|214 (API-2014)\n");
}

TEST(Compare, Tolerates) {
  EXPECT_EQ(changes([](interface_file&) {}, 0.0), "");
  const auto within = [](interface_file& f) {
    layer& l = f.profiles[0].layers[2];
    l.ZBOTM += 0.001;
    l.SIGZRES *= 1.009;
    for (point& q : l.of(curve_kind::py)[0])
      if (std::abs(q.displacement) > 100.0)
        q.displacement += q.displacement > 0.0 ? 1000.0 : -1000.0;  // as a greater diameter of the run does
  };
  EXPECT_EQ(changes(within, 1.0), "");
  EXPECT_EQ(changes(within, 0.5), "+0.9 %|B|3|effective stress|12.6|12.71\n");
  EXPECT_EQ(changes([](interface_file& f) { f.profiles[0].layers[2].ZBOTM += 0.002; }),
            "one file|B|3|layer|there|none\none file|B|3|layer|none|there\n");
}

TEST(Compare, SeesWhatPeakAndStiffnessDoNot) {
  // The residual of 0.8 in layer 3, at the 19th point of 29, and the displacement of the peak.
  EXPECT_EQ(
      changes([](interface_file& f) { f.profiles[0].layers[2].of(curve_kind::tz)[0][18].stress *= 0.5; }),
      "+40 %|B|3|1|T-Z points between\n");
  EXPECT_EQ(changes([](interface_file& f) {
              f.profiles[0].layers[2].of(curve_kind::tz)[0][17].displacement *= 1.1;
            }),
            "+10 %|B|3|1|T-Z points between\n");
}

TEST(Compare, PageHoldsBothCurves) {
  interface_file after = sample_file();
  scale(after.profiles[1].layers[1].of(curve_kind::qz)[0], 0.5);
  const comparison found = compare_files(sample_file(), after, 0.1);
  const std::string page = compare_page(sample_file(), after, found, "a<b, c", {"kN", "m"});
  EXPECT_NE(page.find("<h1>Comparison of a&lt;b, c</h1>"), std::string::npos);
  EXPECT_NE(page.find("<td>-50 %</td><td>B (2)</td><td>2</td>"), std::string::npos);
  EXPECT_NE(page.find("<h2>Profile B (2), layer 2, D = 1</h2>"), std::string::npos);
  EXPECT_EQ(page.find("layer 2, D = 2"), std::string::npos);
  after.profiles = {after.profiles[0]};
  after.profiles[0].name = "C";
  EXPECT_THROW(compare_files(sample_file(), after, 0.1), std::runtime_error);
}

}  // namespace
}  // namespace tervak::report
