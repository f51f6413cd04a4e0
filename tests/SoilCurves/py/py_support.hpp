#pragma once

#include <cmath>

#include "Control/state/sp.hpp"
#include "SoilCurves/py/API14.hpp"
#include "SoilCurves/py/API84.hpp"
#include "SoilCurves/py/API87.hpp"
#include "SoilCurves/py/APILAT.hpp"
#include "SoilCurves/py/ISO04.hpp"
#include "SoilCurves/py/NGIPy.hpp"
#include "SoilCurves/py/VRK80.hpp"
#include "support/small_layer.hpp"

namespace tervak {

using py_routine = void (*)(common&, layer_number, diameter_number);

/// What a case of the P-Y curves sets in a small layer (GAMWAT 10, ATMPRS 100, SUSTIF 100, EPS50 0.01).
struct given {
  double PHI = 0, SU = 0, H = 5, SIGZ = 50, D = 1, J = 0.5, OCR = 0, ZPWP = 0, KSOIL = 0, G = 0, CYCFAC = 0;
  int code = 0, REVISION = 5;
  double ZCYCL = 0;  ///< the layer's level is 5
};

/// The curve that a routine makes of it.
struct py_case : small_layer {
  py_case(py_routine routine, const given& g) : small_layer(1, {g.D}) {
    cmn.PHIR(1) = g.PHI, cmn.SURED(1) = cmn.SUCLAY(1) = g.SU, cmn.NUMCLY = 1;
    cmn.DEPTH(1) = g.H, cmn.SIGZRES(1) = g.SIGZ, cmn.APIJ(1) = g.J, cmn.OCR(1) = g.OCR;
    cmn.ZPWP = g.ZPWP, cmn.KSOILM(1) = g.KSOIL, cmn.PYPARM(1) = {g.G, g.CYCFAC, 0, 0, 0};
    cmn.LAYCOD(1).PYCODE = g.code, cmn.REVISION = g.REVISION, cmn.ZCYCL = g.ZCYCL;
    routine(cmn, 1, 1);
  }
  [[nodiscard]] int last() const { return cmn.NPYPNT(1, 1) / 2; }
};

/// Expects a value within a relative tolerance.
inline void expect_rel(double value, double expected, double tolerance) {
  EXPECT_NEAR(value, expected, std::abs(expected) * tolerance);
}

}  // namespace tervak
