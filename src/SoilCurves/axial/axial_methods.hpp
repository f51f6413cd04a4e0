#pragma once

#include "SoilCurves/store/curve_method.hpp"

namespace tervak {

/// The methods of the T-Z and of the Q-Z curve, one row a code. From 200 on TZMISC and QZMISC judge the code
/// themselves: a number without a row reaches them too, and they refuse it.
///
/// A method reads DIAM, the layer (LAYCOD, ZLAY, PHIR, in revision 5 TAUCMP, TAUTNS, QTIP, GSOIL), the depth
/// table, TRESMX, TZZRES, ZONINF, RFTZ, SFSKF or SFSIGT, BIGDSP; writes TZSTR, TZDSP and NTZPNT, or QZSTR,
/// QZDSP and NQZPNT, of its layer and diameter.
curve_methods tz_methods();
curve_methods qz_methods();

}  // namespace tervak
