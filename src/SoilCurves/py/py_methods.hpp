#pragma once

#include "SoilCurves/store/curve_method.hpp"

namespace tervak {

/// The methods of the P-Y curve, one row a code.
curve_methods py_methods();

}  // namespace tervak
