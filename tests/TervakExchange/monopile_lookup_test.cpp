// Curves and factors of a monopile: the first record that fits, as a search from the first record on finds
// it.

#include "TervakExchange/monopile_lookup.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <random>
#include <stdexcept>

namespace {

using namespace Vrsk::Plin::TervakExchange;

bool fits(double given, double factor, double diameter) {
  return std::abs(given * factor - diameter) < 1.0E-8;
}

TEST(MonopileLookup, TakesTheFirstRecordThatFitsInRunUnits) {
  ManualMonopileSection section;
  section.Records = {{1, 2.0, {0, 5, 6}, {0, 0.1, 0.1}}, {1, 2.0, {9}, {0}}};
  const ManualMonopileCurve first{{0, 0}, {0.1, 6}};  // the last force of a repeated displacement
  const ManualCurveLookup curves(section, 1000);
  EXPECT_EQ(curves.GetManualCurve(1, 2000.0 + 9E-9), first);
  EXPECT_TRUE(curves.GetManualCurve(1, 2000.0 + 2E-8).empty());
  EXPECT_TRUE(curves.GetManualCurve(2, 2000.0).empty());
}

TEST(MonopileLookup, AgreesWithASearchFromTheFirstRecordOn) {
  std::mt19937 random(20261124);
  const auto number = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most)); };
  // Diameters closer to one another than the tolerance, and just at it.
  const auto near = [&](double base) { return base + number(7) * 0.5E-8 - 1.5E-8; };
  int hits = 0;
  for (int table = 0; table < 300; ++table) {
    const double factor = table % 2 == 0 ? 1.0 : 1000.0;
    ManualMonopileSection section;
    MonopileModificationSection factors;
    for (int i = 0; i < 30; ++i) {
      section.Records.push_back({1 + number(3), near(1 + number(2)) / factor, {double(i)}, {0.0}});
      const int LAY1 = number(6) - 1;
      factors.Records.push_back({LAY1, LAY1 + number(4) - 1, near(1 + number(2)) / factor, double(i), 1.0});
    }
    const ManualCurveLookup curves(section, factor);
    const ModificationLookup modifications(factors, factor);
    for (int query = 0; query < 30; ++query) {
      const int layer = number(6);
      const double diameter = near(1 + number(2));
      ManualMonopileCurve curve;
      for (const auto& record : section.Records)
        if (curve.empty() && record.Layer == layer && fits(record.Diameter, factor, diameter))
          curve[0.0] = record.Stresses[0];
      EXPECT_EQ(curves.GetManualCurve(layer, diameter), curve);
      std::optional<double> line;
      for (const auto& record : factors.Records)
        if (!line && record.LAY1 <= layer && layer <= record.LAY2 && fits(record.Diameter, factor, diameter))
          line = record.ForceFactor;
      hits += line.has_value() && !curve.empty();
      if (line)
        EXPECT_EQ(modifications.GetModification(layer, diameter).first, *line);
      else
        EXPECT_THROW(static_cast<void>(modifications.GetModification(layer, diameter)), std::out_of_range);
    }
  }
  EXPECT_GT(hits, 1000);
}

}  // namespace
