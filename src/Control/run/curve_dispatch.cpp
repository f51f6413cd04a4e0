#include "Control/run/curve_dispatch.hpp"

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "SoilCurves/axial/axial_methods.hpp"
#include "SoilCurves/axial/QZMISC.hpp"
#include "SoilCurves/axial/TZMISC.hpp"
#include "SoilCurves/py/py_methods.hpp"

namespace tervak {

namespace {

/// One family of curves: the member of a layer's codes, its table, who judges the codes from 200 on that have
/// no row (nobody in P-Y), and its two lines on the run log.
struct dispatch_row {
  note_subject::part part;
  int layer_code::*code;
  curve_methods (*methods)();
  curve_routine from_200;
  const char* invalid_code;
  const char* data_problem;
};

constexpr dispatch_row FAMILIES[] = {
    {note_subject::part::py, &layer_code::PYCODE, py_methods, nullptr,
     "(/,' **** SR/CONTRL  INVALID P-Y CODE',i5)",
     "(/,' **** SR/CONTRL  P-Y DATA PROBLEM  IERR,LAYER,PILE=',3i5)"},
    {note_subject::part::tz, &layer_code::TZCODE, tz_methods, TZMISC,
     "(/,' **** SR/CONTRL  INVALID T-Z CODE',i5)",
     "(/,' **** SR/CONTRL  T-Z DATA PROBLEM  IERR,LAYER,PILE=',3i5)"},
    {note_subject::part::qz, &layer_code::QZCODE, qz_methods, QZMISC,
     "(/,' **** SR/CONTRL  INVALID Q-Z CODE',i5)",
     "(/,' **** SR/CONTRL  Q-Z DATA PROBLEM  IERR,LAYER,PILE=',3i5)"},
};

bool make_curve(common& cmn, const dispatch_row& family, layer_number NL, diameter_number ND) {
  const int code = cmn.LAYCOD(NL).*family.code;
  const curve_method* method = find_method(family.methods(), code);
  const curve_routine make = method != nullptr ? method->make : code >= 200 ? family.from_200 : nullptr;
  if (make == nullptr) {
    remark(cmn, family.invalid_code, code);
    return false;
  }
  note_about(cmn, {family.part, NL, ND});
  make(cmn, NL, ND, code);
  if (cmn.IERR == 0) note_curve(cmn, false);
  if (cmn.IERR != 0) remark(cmn, family.data_problem, cmn.IERR, NL, ND);
  return cmn.IERR == 0;
}

}  // namespace

bool make_curves(common& cmn, layer_number NL) {
  for (diameter_number ND(1); ND <= cmn.NUMDIA; ++ND)
    for (const dispatch_row& family : FAMILIES)
      if (!make_curve(cmn, family, NL, ND)) return false;
  return true;
}

}  // namespace tervak
