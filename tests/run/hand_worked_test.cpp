// One clay layer and one sand layer, worked out by hand from the deck to the interface file, step by step.
// Units kN, m, kPa. Tolerances are those of the hand calculation.

#include <cmath>
#include <string>
#include <vector>

#include "run/small_deck.hpp"
#include "support/run_directory.hpp"

namespace {

/// The fields of the n-th record of a name.
std::vector<double> record(const std::string& file, const std::string& name, int n) {
  std::size_t at = 0;
  for (int i = 0; i < n; ++i) {
    at = file.find(name, at == 0 ? 0 : at + 1);
    if (at == std::string::npos) return {};
  }
  const auto count = static_cast<std::size_t>(std::stod(file.substr(at + 8, 16)));
  std::vector<double> fields;
  std::size_t column = at + 8;
  while (fields.size() < count) {
    fields.push_back(std::stod(file.substr(column, 16)));
    column += 16;
    if (fields.size() % 4 == 0) column += 9;  // line end and the eight blanks of a continuation line
  }
  return fields;
}

struct point {
  double stress, displacement;
};

/// Compares the points 15, 16, ... of a curve record with the hand-worked ones, and the far side with its
/// mirror.
void expect_curve(const std::vector<double>& fields, const std::vector<point>& by_hand, double tension) {
  ASSERT_EQ(fields.size(), 66U);
  EXPECT_EQ(fields[7], 29.0);
  for (std::size_t k = 0; k < by_hand.size(); ++k) {
    SCOPED_TRACE("point " + std::to_string(15 + k));
    const point& p = by_hand[k];
    EXPECT_NEAR(fields[8 + 2 * (14 + k)], p.stress, 1e-4 * std::abs(p.stress));
    EXPECT_NEAR(fields[9 + 2 * (14 + k)], p.displacement, 1e-4 * std::abs(p.displacement));
    EXPECT_NEAR(fields[8 + 2 * (14 - k)], -tension * p.stress, 1e-4 * std::abs(p.stress));
    EXPECT_NEAR(fields[9 + 2 * (14 - k)], -p.displacement, 1e-4 * std::abs(p.displacement));
  }
}

TEST(HandWorked, ClayLayer) {
  const run_directory directory;
  directory.deck(small_deck());
  ASSERT_EQ(directory.run(), 0);
  const std::string file = directory.read("TERVAK.RIF");

  // Two layers of 5 m; the first one's level is its middle, 2.5 m.
  const std::vector<double> layer = record(file, "RVSOILAY", 1);
  ASSERT_EQ(layer.size(), 17U);
  EXPECT_EQ(layer[3], 5.0);           // bottom
  EXPECT_EQ(layer[4], 2.5);           // level
  EXPECT_EQ(layer[5], 2.5);           // depth, no scour
  EXPECT_EQ(layer[6], 8.0);           // effective unit weight, 18 - 10
  EXPECT_NEAR(layer[9], 20.0, 1e-9);  // stress, 2.5 * 8
  // Strength: 40 stands 1 mm above the sea floor, 60 stands 1 mm above the bottom at 10 m:
  // 40 + 2.501 / 10 * 20 = 45.002.
  EXPECT_NEAR(layer[8], 45.002, 1e-6);
  // Shear modulus: OCR = (4 * 45.002 / 20)^1.25 = 15.6, limited to 10; 300 - 85 * sqrt(9) = 45, at least 50;
  // 50 * 45.002 = 2250.1; E = 2 * 1.5 * G.
  EXPECT_NEAR(layer[13], 2250.1, 1e-3);
  EXPECT_NEAR(layer[12], 6750.3, 1e-3);
  EXPECT_EQ(layer[11], 0.5);

  // P-Y, soft clay, static, D = 1: 3 * 45.002 + 20 + 0.25 * 45.002 * 2.5 = 183.13225, below 9 * 45.002;
  // yc = 2.5 * 0.01 * 1 = 0.025; points at 1, 3 and 8 yc, then the far point and steps of 1 m.
  expect_curve(record(file, "RVSOILPY", 1),
               {{0, 0},
                {91.566125, 0.025},
                {131.85522, 0.075},
                {183.13225, 0.2},
                {183.13225, 1000.0},
                {183.13225, 1001.0}},
               1.0);
  // T-Z: friction 20 + 2.501 / 10 * 10 = 22.501; residual 0.9 of it at 0.02 D + 0.01.
  expect_curve(record(file, "RVSOILTZ", 1),
               {{0, 0},
                {6.7503, 0.0016},
                {11.2505, 0.0031},
                {16.87575, 0.0057},
                {20.2509, 0.008},
                {22.501, 0.01},
                {20.2509, 0.03},
                {20.2509, 1000.03}},
               1.0);
  // Q-Z: tip stress 360 + 2.501 / 10 * 180 = 405.018; no tension.
  expect_curve(record(file, "RVSOILQZ", 1),
               {{0, 0},
                {101.2545, 0.002},
                {202.509, 0.013},
                {303.7635, 0.042},
                {364.5162, 0.073},
                {405.018, 0.1},
                {405.018, 1000.1}},
               0.0);
}

TEST(HandWorked, SandLayer) {
  const run_directory directory;
  std::string deck = with(small_deck(), "1 10.0 18.0 0.0 0.0 0.0 0.0 40.0 60.0 30 0.01 0.25 0.0",
                          "1 10.0 20.0 0.0 0.0 35.0 0.0 0.0 0.0 0 0.0 0.0 0.0");
  deck = with(deck, "1 0 20.0 30.0 20.0 30.0 360.0 540.0 1.0 0.9 0.01",
              "1 0 40.0 70.0 30.0 50.0 4000.0 6000.0 1.0 1.0 0.0");
  deck = with(deck, "1 10.0 2 284 293 293 0", "1 10.0 1 284 200 200 0");
  directory.deck(deck);
  ASSERT_EQ(directory.run(), 0);
  const std::string file = directory.read("TERVAK.RIF");

  const std::vector<double> layer = record(file, "RVSOILAY", 1);
  ASSERT_EQ(layer.size(), 17U);
  EXPECT_EQ(layer[4], 5.0);
  EXPECT_NEAR(layer[7], 35.0, 1e-9);
  EXPECT_NEAR(layer[9], 50.0, 1e-9);  // 5 * (20 - 10)
  // G = 101.3 * tan(35) * 1000 * sqrt(50 / 101.3) / 2 / 1.3 = 19166.5; E = 2 * 1.3 * G.
  EXPECT_NEAR(layer[13], 19166.5, 0.1);
  EXPECT_NEAR(layer[12], 49832.9, 0.1);

  // P-Y of Reese, X / D = 5: C1 = 2.970448, C2 = 3.419182, C3 = 53.793453 for 35 degrees;
  // (2.970448 * 5 + 3.419182) * 50 = 913.5711, below 53.79 * 50. A = 0.88, B = 0.5, k = 1628 * 10.
  // Pu = 803.9426 at 3 D / 80; Pm = 456.7856 at D / 60; exponent 1.644737, C = 0.0829629,
  // yk = (456.7856 / (5 * 16280 * C))^(1.644737 / 0.644737) = 0.001037114; the line there gives 84.42104.
  expect_curve(record(file, "RVSOILPY", 1),
               {{0, 0},
                {84.42104, 0.001037114},
                {251.53307, 0.006246965},
                {363.69655, 0.011456816},
                {456.78555, 1.0 / 60.0},
                {803.94257, 0.0375},
                {803.94257, 1000.0}},
               1.0);
  // T-Z from the shear modulus: 40 + 5.001 / 10 * 30 = 55.003 in compression, half the diameter, zone 10, Rf
  // 0.9. At 0.6: R = 0.54, ln(9.46 / 0.46) * 33.0018 * 0.5 / 19166.515 = 0.00260261. At 0.9: ln(9.19 / 0.19)
  // * ... .
  const std::vector<double> tz = record(file, "RVSOILTZ", 1);
  ASSERT_EQ(tz.size(), 66U);
  EXPECT_NEAR(tz[8 + 2 * 16], 33.0018, 1e-3);
  EXPECT_NEAR(tz[9 + 2 * 16], std::log(9.46 / 0.46) * 33.0018 * 0.5 / 19166.515, 1e-8);
  EXPECT_NEAR(tz[8 + 2 * 12], -(30.0 + 5.001 / 10.0 * 20.0) * 0.6, 1e-3);
  EXPECT_NEAR(tz[9 + 2 * 18], std::log(9.19 / 0.19) * 49.5027 * 0.5 / 19166.515, 1e-8);
  // Q-Z from elasticity: tip stress 4000 + 5.001 / 10 * 2000 = 5000.2. Poisson's ratio runs from 0.3 at the
  // top to 0 at the bottom row of the depth table: 0.15. Modulus 2 * 1.15 * G = 44083; (1 - 0.0225) * 0.6 /
  // 44083 * 5000.2 = 0.0665 is above 0.05 D: the peak only, with a warning.
  expect_curve(record(file, "RVSOILQZ", 1), {{0, 0}, {5000.2, 0.05}, {5000.2, 1000.0}}, 0.0);
  EXPECT_NE(directory.read("TERVAK.MLG")
                .find(" **** WARNING FROM SR/QZMISC : INITIAL STIFFNESS PROBLEM\r\n"
                      " LAYER,NDIA,ESOIL,DSPELAST,DSPMAX=    1    1"),
            std::string::npos);
}

}  // namespace
