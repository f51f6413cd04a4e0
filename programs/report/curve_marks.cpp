#include "report/curve_marks.hpp"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "report/curve_points.hpp"

namespace tervak::report {
namespace {

constexpr double fall_share = 0.001;
constexpr double vertical_share = 0.05;
constexpr double vertical_length = 1e-6;
// The file keeps nine digits of each stress: a fall or step of just the limit must not change sides by that.
constexpr double rounding = 1e-8;
// Displacements count as they stand there: a share of the limit for what subtracting two of them leaves.
constexpr double difference = 1e-6;

double peak_of(const curve& c, const std::vector<std::size_t>& points) {
  double peak = 0.0;
  for (const std::size_t i : points) peak = std::max(peak, std::abs(c[i].stress));
  return peak;
}

/// The greatest fall below what was reached before, as a mark of softening.
std::optional<mark> greatest_fall(const curve& c, int side, const std::vector<std::size_t>& points,
                                  double peak) {
  mark worst{mark_kind::softening, side, 0, 0, fall_share + rounding};
  std::size_t highest = points.front();
  bool found = false;
  for (const std::size_t i : points) {
    const double fall = side * (c[highest].stress - c[i].stress) / peak;
    if (fall > worst.share) {
      worst = {mark_kind::softening, side, highest, i, fall};
      found = true;
    }
    if (fall < 0.0) highest = i;
  }
  return found ? std::optional(worst) : std::nullopt;
}

/// The greatest rise after a fall: from the top before the fall to the highest point after it.
std::optional<mark> greatest_second_peak(const curve& c, int side, const std::vector<std::size_t>& points,
                                         double peak) {
  mark worst{mark_kind::second_peak, side, 0, 0, fall_share + rounding};
  std::size_t highest = points.front(), lowest = points.front();
  bool found = false;
  for (const std::size_t i : points) {
    const double stress = side * c[i].stress;
    const double dip = std::min(stress, side * c[highest].stress) - side * c[lowest].stress;
    if (dip / peak > worst.share) {
      worst = {mark_kind::second_peak, side, highest, i, dip / peak};
      found = true;
    }
    if (stress > side * c[highest].stress) highest = lowest = i;
    if (stress < side * c[lowest].stress) lowest = i;
  }
  return found ? std::optional(worst) : std::nullopt;
}

void find_falls(const curve& c, int side, const std::vector<std::size_t>& points, double peak,
                std::vector<mark>& out) {
  const std::optional<mark> second = greatest_second_peak(c, side, points, peak);
  std::optional<mark> fall = greatest_fall(c, side, points, peak);
  if (fall && side * c[fall->to].stress <= 0.0) fall->kind = mark_kind::fall;
  if (fall && (fall->kind == mark_kind::fall || !second)) out.push_back(*fall);
  if (second) out.push_back(*second);
}

void find_vertical(const curve& c, int side, const std::vector<std::size_t>& points, double peak,
                   double length, std::vector<mark>& out) {
  for (std::size_t a = 0; a < points.size(); ++a) {
    const point& start = c[points[a]];
    std::size_t to = a;
    double step = 0.0;
    for (std::size_t b = a + 1; b < points.size(); ++b) {
      const point& end = c[points[b]];
      if (std::abs(end.displacement - start.displacement) > vertical_length * length * (1.0 + difference))
        break;
      if (std::abs(end.stress - start.stress) / peak <= step) continue;
      step = std::abs(end.stress - start.stress) / peak;
      to = b;
    }
    if (step < vertical_share - rounding) continue;
    out.push_back({mark_kind::vertical, side, points[a], points[to], step});
    a = to - 1;
  }
}

}  // namespace

std::size_t origin_of(const curve& c) {
  const auto nearer = [](const point& a, const point& b) {
    return std::pair(std::abs(a.displacement), std::abs(a.stress)) <
           std::pair(std::abs(b.displacement), std::abs(b.stress));
  };
  return static_cast<std::size_t>(std::min_element(c.begin(), c.end(), nearer) - c.begin());
}

std::vector<std::size_t> outward(const curve& c, int side) {
  std::vector<std::size_t> points;
  if (c.empty()) return points;
  const std::size_t origin = origin_of(c);
  for (std::size_t i = 0; side > 0 ? origin + i < c.size() : i <= origin; ++i)
    points.push_back(side > 0 ? origin + i : origin - i);
  return points;
}

double peak_stress(const curve& c, int side) {
  double peak = c.empty() ? 0.0 : c.front().stress;
  for (const point& q : c) peak = side > 0 ? std::max(peak, q.stress) : std::min(peak, q.stress);
  return peak;
}

std::vector<mark> find_marks(const curve& c, double length) {
  if (std::all_of(c.begin(), c.end(), [](const point& p) { return p.stress == 0.0; })) return {mark{}};
  std::vector<mark> out;
  for (const int side : {1, -1}) {
    const std::vector<std::size_t> points = outward(c, side);
    const double peak = peak_of(c, points);
    if (peak == 0.0) continue;
    find_falls(c, side, points, peak, out);
    find_vertical(c, side, points, peak, length, out);
  }
  return out;
}

double shape_end(const curve& c, int side) {
  const std::vector<std::size_t> points = outward(c, side);
  const double peak = peak_of(c, points);
  if (peak == 0.0) return 0.0;
  const double near_flat = 0.1 * peak;
  const auto size = [&](std::size_t i) { return std::abs(c[points[i]].displacement); };
  const auto stress = [&](std::size_t i) { return c[points[i]].stress; };
  const auto [first, end] = points_before_filler(c, false);
  std::size_t last = points.size() - 1 - (side > 0 ? c.size() - end : first);
  double low = stress(last), high = low;
  for (std::size_t i = last; i > 0; --i) {
    low = std::min(low, stress(i));
    high = std::max(high, stress(i));
    const bool flat = std::max(high - stress(i - 1), stress(i - 1) - low) <= near_flat;
    if (flat && size(i - 1) > 0.0 && size(i) >= 100.0 * size(i - 1)) {
      last = i - 1;
      break;
    }
  }
  return size(last);
}

}  // namespace tervak::report
