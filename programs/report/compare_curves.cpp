#include "report/compare_curves.hpp"

#include <algorithm>
#include <cmath>

#include "report/curve_marks.hpp"
#include "report/curve_points.hpp"

namespace tervak::report {

double side_peak(const curve& c, int side) {
  if (c.empty()) return 0.0;
  const std::vector<std::size_t> way = outward(c, side);
  if (way.size() < 2) return 0.0;
  double peak = side * c[way[1]].stress;
  for (std::size_t i = 1; i < way.size(); ++i) peak = std::max(peak, side * c[way[i]].stress);
  return peak;
}

double initial_stiffness(const curve& c, int side) {
  if (c.empty() || is_absent(c)) return 0.0;
  const point origin = c[origin_of(c)];
  for (const std::size_t i : outward(c, side))
    if (c[i].displacement != origin.displacement)
      return (c[i].stress - origin.stress) / (c[i].displacement - origin.displacement);
  return 0.0;
}

std::optional<double> greatest_change(const curve& a, const curve& b, bool monopile) {
  const auto [from, to] = points_before_filler(a, monopile);
  if (points_before_filler(b, monopile) != std::pair(from, to)) return std::nullopt;
  if (monopile && is_absent(a) && is_absent(b)) return 0.0;
  double greatest = 0.0;
  for (const int side : {1, -1}) {
    const double peak = std::abs(side_peak(a, side)), end = shape_end(a, side);
    for (const std::size_t i : outward(a, side)) {
      if (i < from || i >= to) continue;
      const double stress = std::abs(b[i].stress - a[i].stress);
      const double way = std::abs(b[i].displacement - a[i].displacement);
      if (stress > 0.0) greatest = std::max(greatest, stress / peak);
      if (way > 0.0 && std::abs(a[i].displacement) <= end)
        greatest = std::max(greatest, way / std::abs(a[i].displacement));
    }
  }
  return 100.0 * greatest;
}

}  // namespace tervak::report
