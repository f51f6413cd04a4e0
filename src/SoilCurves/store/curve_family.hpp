#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// The tables of one family of curves. P-Y, T-Z and Q-Z are stored alike: stress and displacement by point,
/// diameter and layer; number of points and index of the origin by diameter and layer.
struct curve_family {
  curve_table& STR;
  curve_table& DSP;
  table2<int>& NPNT;
  table2<int>& NORG;
};

inline curve_family py_curves(common& cmn) { return {cmn.PYSTR, cmn.PYDSP, cmn.NPYPNT, cmn.NPYORG}; }
inline curve_family tz_curves(common& cmn) { return {cmn.TZSTR, cmn.TZDSP, cmn.NTZPNT, cmn.NTZORG}; }
inline curve_family qz_curves(common& cmn) { return {cmn.QZSTR, cmn.QZDSP, cmn.NQZPNT, cmn.NQZORG}; }

}  // namespace tervak
