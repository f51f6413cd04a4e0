#pragma once

#include "SoilCurves/store/curve_method.hpp"

namespace tervak {

/// The methods of the P-Y curve, one row a code.
///
/// A method reads DIAM, the layer (LAYCOD, ZLAY, DEPTH, SIGZRES, DSIGZ, PHIR, SURED), the soil type's or main
/// layer's EPS50, APIJ, OCR, KSOILM and PYPARM, the clay list (stiff clay), GAMWAT, ATMPRS, SUSTIF, ZCYCL,
/// ZPWP, BIGDSP; writes PYSTR, PYDSP and NPYPNT of its layer and diameter.
curve_methods py_methods();

}  // namespace tervak
