#pragma once

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "SoilCurves/curve_side.hpp"

using rows = std::vector<tervak::curve_point>;

/// Compares one side (sign 1 or -1) of the curve of layer 1 and diameter 1 with rows from the origin outward.
/// Rows of both sides stand positive, their stresses are shares of `stress`. A tolerance of 0 asks for the
/// very bits.
inline void expect_side(const tervak::curve_family& family, int sign, const rows& side, double stress = 1.0,
                        double tolerance = 0.0) {
  ASSERT_EQ(family.NPNT(1, 1), 2 * static_cast<int>(side.size()) + 1);
  int k = family.NORG(1, 1);
  for (const tervak::curve_point& row : side) {
    k += sign;
    for (const auto& [want, have] : {std::pair{sign * row.stress * stress, family.STR(k, 1, 1)},
                                     std::pair{sign * row.displacement, family.DSP(k, 1, 1)}}) {
      EXPECT_LE(std::abs(have - want), tolerance * std::abs(want))
          << "slot " << k << ": " << have << ", " << want;
      EXPECT_EQ(std::signbit(have), std::signbit(want)) << "slot " << k;
    }
  }
}
