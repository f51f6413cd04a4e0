#pragma once

#include "SoilCurves/store/curve_side.hpp"

namespace tervak {

/// One side of an automatic axial curve: full stress, its displacement, and the residual point of code 103.
struct automatic_values {
  double full_stress;
  double displacement;
  double residual_stress;
  double residual_displacement;
};

/// Lays a T-Z or Q-Z curve of the codes 100 to 103; any other code writes nothing and is no error.
///
/// 100 linear: 1000 times the full stress at 1000 times its displacement, both sides with the compression
/// values. 101 elastic-plastic. 102 three parts: 0.75 of the stress at 0.3 of the displacement comes first.
/// 103 as 102, with the residual point behind the peak. 101 to 103 end flat at the far displacement BIGDSP.
void lay_automatic_curve(const curve_family& family, layer_number NL, diameter_number ND, int ICODE,
                         double BIGDSP, const automatic_values& compression, const automatic_values& tension);

}  // namespace tervak
