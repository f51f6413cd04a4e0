#include "SoilCurves/axial/automatic_curve.hpp"

#include "Control/state/sp.hpp"

namespace tervak {

namespace {

curve_side automatic_side(int ICODE, double BIGDSP, const automatic_values& values) {
  static constexpr curve_point LINEAR[] = {{1000.0, 1000.0}};
  static constexpr curve_point ELASTIC[] = {{1.0, 1.0}};
  static constexpr curve_point THREE_PARTS[] = {{0.75, sp(0.3f)}, {1.0, 1.0}};
  const double TM = values.full_stress;
  const double Z = values.displacement;
  if (ICODE == 100) return scaled_side(LINEAR, TM, Z);

  curve_side side = ICODE == 101 ? scaled_side(ELASTIC, TM, Z) : scaled_side(THREE_PARTS, TM, Z);
  if (ICODE == 103) side.push_back({values.residual_stress, values.residual_displacement});
  side.push_back({side.back().stress, BIGDSP});
  return side;
}

}  // namespace

void lay_automatic_curve(const curve_family& family, layer_number NL, diameter_number ND, int ICODE,
                         double BIGDSP, const automatic_values& compression,
                         const automatic_values& tension) {
  if (ICODE < 100 || ICODE > 103) return;
  const automatic_values& lower = ICODE == 100 ? compression : tension;
  lay_curve(family, NL, ND, automatic_side(ICODE, BIGDSP, compression), automatic_side(ICODE, BIGDSP, lower));
}

}  // namespace tervak
