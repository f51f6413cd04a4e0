#include "report/axial_capacity.hpp"

#include <algorithm>
#include <numbers>

namespace tervak::report {
namespace {

constexpr int linear_code = 100;

struct peaks {
  double compression = 0.0;
  double tension = 0.0;
};

/// The greatest resistance on each side, without sign.
peaks peaks_of(const curve& c) {
  peaks out;
  for (const point& q : c) {
    out.compression = std::max(out.compression, q.stress);
    out.tension = std::max(out.tension, -q.stress);
  }
  return out;
}

std::optional<double> sum(std::optional<double> a, std::optional<double> b) {
  return a && b ? std::optional(*a + *b) : std::nullopt;
}

std::vector<capacity_row> rows_of(const profile& p, std::size_t d, double top) {
  const double diameter = p.diameters[d];
  const double circumference = std::numbers::pi * diameter;
  const double tip_area = std::numbers::pi * diameter * diameter / 4.0;
  std::vector<capacity_row> rows;
  std::optional<double> compression = 0.0, tension = 0.0;
  for (const layer& l : p.layers) {
    const double height = std::max(0.0, l.ZBOTM - top);
    top = std::max(top, l.ZBOTM);
    std::optional<double> tip, added_compression, added_tension;
    if (l.tz_code != linear_code) {
      const peaks skin = peaks_of(l.of(curve_kind::tz)[d]);
      added_compression = skin.compression * circumference * height;
      added_tension = skin.tension * circumference * height;
    }
    if (l.qz_code != linear_code) tip = peaks_of(l.of(curve_kind::qz)[d]).compression * tip_area;
    compression = sum(compression, added_compression);
    tension = sum(tension, added_tension);
    rows.push_back({l.ZBOTM, compression, tension, tip, sum(compression, tip), tension});
  }
  return rows;
}

}  // namespace

std::vector<axial_capacity> axial_capacities(const profile& p, std::optional<double> local_scour) {
  const double top = std::max(p.sea_floor, local_scour.value_or(p.sea_floor));
  std::vector<axial_capacity> out;
  for (std::size_t d = 0; d < p.diameters.size(); ++d) out.push_back({p.diameters[d], rows_of(p, d, top)});
  return out;
}

}  // namespace tervak::report
