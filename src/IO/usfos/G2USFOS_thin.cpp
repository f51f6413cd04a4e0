#include <cmath>

#include "IO/usfos/G2USFOS_materials.hpp"

namespace tervak {

namespace {

constexpr double BELOW = 0.9900000002235174;
constexpr double ABOVE = 1.0099999997764826;
constexpr double ZERO = 1.0E-99;

bool agree(double reference, double value) {
  const double old_value = std::fabs(reference) < ZERO ? 0.0 : reference;
  const double new_value = std::fabs(value) < ZERO ? 0.0 : value;
  if (old_value == 0.0 && new_value == 0.0) return true;
  const double ratio = new_value == 0.0 ? new_value / old_value : old_value / new_value;
  return ratio > BELOW && ratio < ABOVE;
}

}  // namespace

std::vector<usfos_point> usfos_thin(const std::vector<usfos_point>& curve) {
  std::vector<usfos_point> kept;
  for (const usfos_point& point : curve)
    if (kept.empty() || !agree(kept.back().F, point.F) || !agree(kept.back().U, point.U))
      kept.push_back(point);

  // The first point is drawn in to twice the displacement of the second; its force stays.
  if (kept.size() >= 2 && kept[0].U / kept[1].U > 2.0) kept[0].U = 2.0 * kept[1].U;

  // A curve that ends at no force or displacement loses its end. The test is signed: negative values go too.
  if (!kept.empty() && (kept.back().F < 1.0E-8 || kept.back().U < 1.0E-8)) kept.pop_back();

  // The last point is drawn in along the last stretch.
  if (kept.size() >= 2) {
    const auto [F1, U1] = kept[kept.size() - 2];
    const auto [F2, U2] = kept.back();
    if (U2 / U1 > 2.0) kept.back() = {F1 + (2 * U1 - U1) * (F2 - F1) / (U2 - U1), 2 * U1};
  }
  return kept;
}

}  // namespace tervak
