#include "SoilCurves/store/curve_side.hpp"

namespace tervak {

curve_side scaled_side(std::span<const curve_point> shape, double stress, double length) {
  curve_side side;
  for (const curve_point& ratio : shape) side.push_back({ratio.stress * stress, ratio.displacement * length});
  return side;
}

void lay_curve(const curve_family& family, layer_number NL, diameter_number ND, const curve_side& compression,
               const curve_side& tension) {
  const int O = family.NORG(ND, NL);
  int k = 0;
  for (const curve_point& point : compression) {
    ++k;
    family.STR(O + k, ND, NL) = point.stress;
    family.DSP(O + k, ND, NL) = point.displacement;
  }
  family.NPNT(ND, NL) = 2 * k + 1;
  k = 0;
  for (const curve_point& point : tension) {
    ++k;
    family.STR(O - k, ND, NL) = -point.stress;
    family.DSP(O - k, ND, NL) = -point.displacement;
  }
}

}  // namespace tervak
