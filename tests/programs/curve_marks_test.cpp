#include "report/curve_marks.hpp"

#include <gtest/gtest.h>

#include <sstream>

#include "programs/sample_rif.hpp"
#include "report/curve_view.hpp"
#include "report/read_interface_file.hpp"

namespace tervak::report {
namespace {

struct marked {
  const char* what;
  curve points;  // stress, displacement
  double diameter;
  std::string expected;  // letter, side, from-to, share; one behind the other
};

std::string text_of(const std::vector<mark>& marks) {
  std::string out;
  for (const mark& m : marks)
    out += std::string(out.empty() ? "" : "; ") + words_of(m.kind).letter +
           (m.side > 0   ? "+"
            : m.side < 0 ? "-"
                         : "") +
           " " + std::to_string(m.from) + "-" + std::to_string(m.to) + " " + percent(m.share);
  return out;
}

const std::vector<marked> curves = {
    {"rising to flat", {{-50, -2}, {-50, -1}, {0, 0}, {50, 1}, {50, 2}}, 1.0, ""},
    {"no stress", {{0, -1}, {0, 0}, {0, 1}}, 1.0, "0 0-0 0 %"},
    {"no points", {}, 1.0, "0 0-0 0 %"},
    {"no tension", {{0, -2}, {0, -1}, {0, 0}, {80, 1}, {80, 2}}, 1.0, ""},
    {"a fall on each side", {{-8, -2}, {-10, -1}, {0, 0}, {10, 1}, {9, 2}}, 1.0, "S+ 3-4 10 %; S- 1-0 20 %"},
    {"a fall of 0.1 %", {{0, 0}, {1000, 1}, {999, 2}}, 1.0, ""},
    {"a fall of 0.11 %", {{0, 0}, {1000, 1}, {998.9, 2}}, 1.0, "S+ 1-2 0.11 %"},
    {"a fall of 0.1 % as the file's nine digits have it",
     {{0, 0}, {1.00000001, 1}, {0.999000005, 2}},
     1.0,
     ""},
    {"a fall of 0.10001 %", {{0, 0}, {1000, 1}, {998.9999, 2}}, 1.0, "S+ 1-2 0.1 %"},
    {"a fall at the far end", {{-10, -2000}, {-10, -1}, {0, 0}, {9, 1}, {4.5, 2000}}, 1.0, "S+ 3-4 50 %"},
    {"small falls add up", {{0, 0}, {1000, 1}, {999.4, 2}, {998.8, 3}}, 1.0, "S+ 1-3 0.12 %"},
    {"a dip before the peak", {{0, 0}, {50, 1}, {40, 2}, {100, 3}}, 1.0, "P+ 1-3 10 %"},
    {"stress below zero", {{0, 0}, {-5, 1}, {100, 2}}, 1.0, "F+ 0-1 5 %; P+ 0-2 5 %"},
    {"a fall to zero on one side",
     {{-8, -2}, {-10, -1}, {0, 0}, {10, 1}, {0, 2}},
     1.0,
     "F+ 3-4 100 %; S- 1-0 20 %"},
    {"two dips, the deeper counts",
     {{0, 0}, {50, 1}, {45, 2}, {80, 3}, {60, 4}, {90, 5}},
     1.0,
     "P+ 3-5 22.2 %"},
    {"a residual that wavers by less than 0.1 %",
     {{0, 0}, {1000, 1}, {800, 2}, {800.9, 3}},
     1.0,
     "S+ 1-2 20 %"},
    {"5 % over 1e-6 D", {{0, 0}, {50, 0.5}, {55, 0.500002}, {100, 1}}, 2.0, "V+ 1-2 5 %"},
    {"4.9 % over 1e-6 D", {{0, 0}, {50, 0.5}, {54.9, 0.500002}, {100, 1}}, 2.0, ""},
    {"5 % over 1.1e-6 D", {{0, 0}, {50, 0.5}, {55, 0.5000022}, {100, 1}}, 2.0, ""},
    {"three steps within 1e-6 D", {{0, 0}, {2, 2e-7}, {4, 4e-7}, {6, 6e-7}, {100, 1}}, 1.0, "V+ 0-3 6 %"},
    {"two pieces", {{0, 0}, {50, 0}, {60, 1}, {100, 1}}, 1.0, "V+ 0-1 50 %; V+ 2-3 40 %"},
    {"full at once", {{-8, -1}, {-8, 0}, {0, 0}, {8, 0}, {8, 1}}, 1.0, "V+ 2-3 100 %; V- 2-1 100 %"},
    {"a drop at one place", {{0, 0}, {100, 1}, {60, 1}}, 1.0, "S+ 1-2 40 %; V+ 1-2 40 %"},
};

TEST(CurveMarks, HandWorkedCurves) {
  for (const marked& c : curves) EXPECT_EQ(text_of(find_marks(c.points, c.diameter)), c.expected) << c.what;
}

// Two marks at one point are one text, so that their letters do not lie on one another.
TEST(CurveMarks, Letters) {
  const auto marks = find_marks({{-9, -2}, {-10, -1}, {0, 0}, {100, 1}, {60, 1}}, 1.0);
  EXPECT_EQ(letters_of(marks), (std::vector<std::pair<std::size_t, std::string>>{{4, "SV"}, {0, "S"}}));
}

// Where the shape of the positive side ends.
TEST(CurveMarks, ShapeEnds) {
  EXPECT_EQ(shape_end({{0, 0}, {5, 0.1}, {10, 0.4}, {10, 2000}, {10, 2001}}, 1), 0.4) << "far points";
  EXPECT_EQ(shape_end({{0, 0}, {5, 0.1}, {9.8, 0.4}, {10, 2000}, {10, 2001}}, 1), 0.4)
      << "stress still creeps";
  EXPECT_EQ(shape_end({{-10, -2.4}, {-10, -1.4}, {-10, -0.4}, {0, 0}, {10, 0.4}, {10, 1.4}, {10, 2.4}}, 1),
            0.4)
      << "filled out without far point";
  EXPECT_EQ(shape_end({{-10000, -101}, {-10000, -100}, {0, 0}, {10000, 100}, {10000, 101}}, 1), 100.0)
      << "linear, as far as it rises";
  EXPECT_EQ(shape_end({{0, 0}, {1, 1e-5}, {10, 0.4}}, 1), 0.4) << "a stiff start is no far point";
  EXPECT_EQ(shape_end({{0, 0}, {0, 1000}, {0, 1001}}, 1), 0.0) << "zero curve";
  EXPECT_EQ(shape_end({{0, -2000}, {0, -2000}, {0, 2000}, {0, 2000}}, 1), 0.0)
      << "monopile layer without data";
  EXPECT_EQ(shape_end({{-10, -2000}, {-10, -0.3}, {0, 0}, {10, 0.4}}, -1), 0.3) << "negative side";
}

TEST(CurveMarks, ByLayer) {
  const profile p =
      read_interface_file("T.RIF", std::istringstream(sample::rif({1, 5, 2, true, ""}))).profiles[0];
  const auto marks = [&](std::size_t i, curve_kind kind) {
    return text_of(marks_of(p, p.layers[i], kind)[1]);
  };
  EXPECT_EQ(marks(0, curve_kind::py), "") << "zero, but above the scour level";
  EXPECT_EQ(marks(4, curve_kind::qz), "0 0-0 0 %");
  EXPECT_EQ(marks(1, curve_kind::qz), "") << "no tension is no fault";
  EXPECT_EQ(marks(2, curve_kind::tz), "S+ 17-18 20 %; S- 11-10 20 %");
  EXPECT_EQ(marks(2, curve_kind::py), "V+ 14-15 50 %; V- 14-13 50 %");
  EXPECT_EQ(marks(1, curve_kind::bsy), "") << "base shear is given for the base only";
  const curve_view view = view_curves(p, p.layers[2], curve_kind::tz, {});
  EXPECT_FALSE(view.alike) << "tension is 0.9 of compression";
  EXPECT_EQ(view.x.title, "displacement z [run units]");
  EXPECT_NEAR(view.x.high, 0.044, 1e-12);
  EXPECT_NEAR(view.full_x.high, 2009.0 + 0.03 * 4018.0, 1e-9);
  EXPECT_TRUE(view_curves(p, p.layers[2], curve_kind::py, {}).alike);
  EXPECT_EQ(view_curves(p, p.layers[2], curve_kind::py, {}).x.low, 0.0);
}

// Peaks of P-Y in layers 2 to 5 are 32, 44, 56, 68; 2 and 4 are sand.
TEST(CurveMarks, NeighboursOfOneSoilAndCode) {
  profile p = read_interface_file("T.RIF", std::istringstream(sample::rif({1, 5, 1, false, ""}))).profiles[0];
  const auto jump = [&](double factor) {
    profile q = p;
    q.layers[3].PHIR = q.layers[2].PHIR;
    for (point& at : q.layers[3].of(curve_kind::py)[0]) at.stress *= factor;
    return text_of(marks_of(q, q.layers[3], curve_kind::py)[0]);
  };
  EXPECT_EQ(jump(2.4), "N+ 0-0 305 %");
  EXPECT_EQ(jump(2.3), "");
  EXPECT_EQ(jump(0.25), "N+ 0-0 314 %");
  p.layers[3].PHIR = 0.0;
  p.layers[2].py_code = 214;
  for (point& at : p.layers[3].of(curve_kind::py)[0]) at.stress *= 10.0;
  EXPECT_EQ(text_of(marks_of(p, p.layers[3], curve_kind::py)[0]), "") << "another code";
}

}  // namespace
}  // namespace tervak::report
