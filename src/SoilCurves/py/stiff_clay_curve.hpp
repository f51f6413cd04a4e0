#pragma once

#include "SoilCurves/py/py_frame.hpp"

namespace tervak {

/// Stores the curve of a stiff clay by PYStiffClay, which works in kN and m whatever the run's units are. The
/// conversion takes one atmosphere as 101.3 kPa and as 10.13 m of water, so it is right only as far as ATMPRS
/// and GAMWAT are; UNITM and UNITF are not looked at.
///
/// The strength list SUCLAY, DPCLAY is converted in place and back, which may leave it changed in the last
/// bit. On failure prints the method's message and sets IERR to 1; the list then stays converted.
void stiff_clay_curve(common& cmn, const py_layer& layer, const py_method& method);

}  // namespace tervak
