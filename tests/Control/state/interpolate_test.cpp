// The table lookup: flat ends, exact hits, and an order check that goes no further than the walk.

#include <gtest/gtest.h>

#include "Control/state/Interpolate.hpp"

namespace tervak {
namespace {

TEST(Interpolate, Lookups) {
  constexpr double FAILED = 1.0E10;
  const vector1<double> up = {1, 2, 4}, down = {4, 2, 1}, Y = {10, 20, 40}, level = {3, 3},
                        broken = {1, 3, 3, 5}, broken_down = {5, 3, 3, 1}, four = {1, 2, 3, 4},
                        thin = {0, 1.0E-10}, wide = {0, 1.1E-10};
  const struct {
    const char* what;
    int N, ISIGN;
    const vector1<double>&X, &Y;
    double XI, YI;
    int IERR;
  } rows[] = {
      // clang-format off
      {"one point, any sign", 1, 0, up, Y, 7, 10, 0}, {"bad sign", 3, 0, up, Y, 2, FAILED, 1},
      {"before the first", 3, 1, up, Y, 0, 10, 0}, {"on the first", 3, 1, up, Y, 1, 10, 0},
      {"inside", 3, 1, up, Y, 3, 30, 0}, {"hit", 3, 1, up, Y, 2, 20, 0},
      {"on the last", 3, 1, up, Y, 4, 40, 0}, {"behind the last", 3, 1, up, Y, 9, 40, 0},
      {"N points count", 2, 1, up, Y, 9, 20, 0}, {"descending, before the first", 3, -1, down, Y, 9, 10, 0},
      {"descending, on the first", 3, -1, down, Y, 4, 10, 0},
      {"descending, inside", 3, -1, down, Y, 3, 15, 0}, {"descending, hit", 3, -1, down, Y, 2, 20, 0},
      {"descending, on the last", 3, -1, down, Y, 1, 40, 0},
      {"descending, behind the last", 3, -1, down, Y, 0, 40, 0}, {"wrong order", 3, 1, down, Y, 2, FAILED, 2},
      {"wrong order, descending", 3, -1, up, Y, 2, FAILED, 3}, {"no span", 2, 1, level, Y, 3, FAILED, 2},
      {"no span, descending", 2, -1, level, Y, 3, FAILED, 3},
      {"span at the tolerance", 2, 1, thin, Y, 1, FAILED, 2},
      {"span above the tolerance", 2, 1, wide, Y, 1, 20, 0},
      {"disorder ahead", 4, 1, broken, four, 2, 1.5, 0}, {"disorder met", 4, 1, broken, four, 4, FAILED, 2},
      {"disorder unseen at the end", 4, 1, broken, four, 5, 4, 0},
      {"disorder met, descending", 4, -1, broken_down, four, 2, FAILED, 3},
      {"disorder ahead, descending", 4, -1, broken_down, four, 4, 1.5, 0},
      // clang-format on
  };
  for (const auto& r : rows) {
    double YI = 0;
    int IERR = 9;
    KestraCommonLibrary::Utils::Interpolate(r.N, r.ISIGN, r.X, r.Y, r.XI, YI, IERR);
    EXPECT_EQ(IERR, r.IERR) << r.what;
    EXPECT_DOUBLE_EQ(YI, r.YI) << r.what;
  }
}

}  // namespace
}  // namespace tervak
