#include "report/curve_points.hpp"

#include <algorithm>
#include <cmath>

namespace tervak::report {
namespace {

/// How many points at one end repeat the stress of their inner neighbour at a distance of `step`.
template <typename Iterator>
std::size_t repeats(Iterator from, Iterator to, double step) {
  std::size_t count = 0;
  for (; to - from > 1 && from->stress == from[1].stress; ++from, ++count) {
    // Both displacements are rounded to nine digits.
    const double rounding = 1.1e-8 * std::abs(from->displacement);
    if (!(std::abs(std::abs(from->displacement - from[1].displacement) - step) <= rounding)) break;
  }
  return count;
}

}  // namespace

std::pair<std::size_t, std::size_t> points_before_filler(const curve& c, bool monopile) {
  const double step = monopile ? 0.0 : 1.0;
  const auto middle = static_cast<std::ptrdiff_t>(c.size() / 2);
  const std::size_t count =
      std::min(repeats(c.begin(), c.begin() + middle, step), repeats(c.rbegin(), c.rbegin() + middle, step));
  return {count, c.size() - count};
}

bool is_absent(const curve& c) {
  return std::all_of(c.begin(), c.end(), [](const point& q) { return q.stress == 0.0; });
}

}  // namespace tervak::report
