#include "Control/run/curve_dispatch.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>

#include "Control/state/report.hpp"
#include "SoilCurves/axial/QZAUTO.hpp"
#include "SoilCurves/axial/QZMAN.hpp"
#include "SoilCurves/axial/QZMISC.hpp"
#include "SoilCurves/axial/TZAUTO.hpp"
#include "SoilCurves/axial/TZMAN.hpp"
#include "SoilCurves/axial/TZMISC.hpp"
#include "SoilCurves/py/API14.hpp"
#include "SoilCurves/py/API84.hpp"
#include "SoilCurves/py/API87.hpp"
#include "SoilCurves/py/ISO04.hpp"
#include "SoilCurves/py/NGIPy.hpp"
#include "SoilCurves/py/PYAUTO.hpp"
#include "SoilCurves/py/PYMAN.hpp"
#include "SoilCurves/py/VRK80.hpp"

namespace tervak {

namespace {

/// A row of a code table: the codes from `first` to `last`, and the routine that makes the curve.
struct method {
  int first;
  int last;
  void (*make)(common& cmn, int NL, int ND, int code);
};

template <void (*ROUTINE)(common&, int, int)>
void plain(common& cmn, int NL, int ND, int) {
  ROUTINE(cmn, NL, ND);
}

constexpr method PY_METHODS[] = {
    {0, 0, plain<PYMAN>},     {100, 103, PYAUTO},       {284, 284, plain<API84>}, {287, 287, plain<API87>},
    {214, 214, plain<API14>}, {588, 588, plain<API87>}, {380, 380, plain<VRK80>}, {404, 404, plain<ISO04>},
    {570, 570, plain<ISO04>}, {600, 600, plain<NGI11>},
};

// From 200 on the routines of the axial curves judge the code themselves.
constexpr int ANY = std::numeric_limits<int>::max();
constexpr method TZ_METHODS[] = {{0, 0, plain<TZMAN>}, {100, 103, TZAUTO}, {200, ANY, TZMISC}};
constexpr method QZ_METHODS[] = {{0, 0, plain<QZMAN>}, {100, 103, QZAUTO}, {200, ANY, QZMISC}};

/// One family of curves: its table, and its two lines on the run log.
template <std::size_t N>
bool make_curve(common& cmn, const method (&methods)[N], int code, int NL, int ND, const char* invalid_code,
                const char* data_problem) {
  const method* found = std::find_if(std::begin(methods), std::end(methods), [code](const method& row) {
    return row.first <= code && code <= row.last;
  });
  if (found == std::end(methods)) {
    remark(cmn, invalid_code, code);
    return false;
  }
  found->make(cmn, NL, ND, code);
  if (cmn.IERR != 0) remark(cmn, data_problem, cmn.IERR, NL, ND);
  return cmn.IERR == 0;
}

}  // namespace

bool make_curves(common& cmn, int NL) {
  const layer_code code = cmn.LAYCOD(NL);
  for (int ND = 1; ND <= cmn.NUMDIA; ++ND) {
    if (!make_curve(cmn, PY_METHODS, code.PYCODE, NL, ND, "(/,' **** SR/CONTRL  INVALID P-Y CODE',i5)",
                    "(/,' **** SR/CONTRL  P-Y DATA PROBLEM  IERR,LAYER,PILE=',3i5)"))
      return false;
    if (!make_curve(cmn, TZ_METHODS, code.TZCODE, NL, ND, "(/,' **** SR/CONTRL  INVALID T-Z CODE',i5)",
                    "(/,' **** SR/CONTRL  T-Z DATA PROBLEM  IERR,LAYER,PILE=',3i5)"))
      return false;
    if (!make_curve(cmn, QZ_METHODS, code.QZCODE, NL, ND, "(/,' **** SR/CONTRL  INVALID Q-Z CODE',i5)",
                    "(/,' **** SR/CONTRL  Q-Z DATA PROBLEM  IERR,LAYER,PILE=',3i5)"))
      return false;
  }
  return true;
}

}  // namespace tervak
