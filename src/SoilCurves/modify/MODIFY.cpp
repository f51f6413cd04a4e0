#include "SoilCurves/modify/MODIFY.hpp"

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "SoilCurves/modify/modification_factors.hpp"
#include "SoilCurves/store/curve_family.hpp"
#include "SoilCurves/store/first_live_layer.hpp"

namespace tervak {

namespace {

using part = note_subject::part;

struct factor_names {
  std::string_view FPOS, FNEG, FDSP, FEND, DEND;
};

void tell_axial_factors(const common& cmn, const note_subject& curve, const std::array<double, 5>& factors,
                        const factor_names& names) {
  note_about(cmn, curve);
  note(cmn, equation_of("MOD-TZ-1"),
       {{names.FPOS, factors[0]}, {names.FNEG, factors[1]}, {names.FDSP, factors[2]}});
  note(cmn, equation_of("MOD-TZ-2"), {{names.FEND, factors[3]}, {names.DEND, factors[4]}});
}

void tell_dead(const common& cmn, diameter_number ND, layer_number NL) {
  for (const part of : {part::py, part::tz, part::qz}) {
    note_about(cmn, {of, NL, ND});
    note(cmn, equation_of("MOD-1"), "above the local scour level: no stress",
         {{"Z", cmn.ZLAY(NL), in::length},
          {"ZSEAFL", cmn.ZSEAFL, in::length},
          {"SCRLOC", cmn.SCRLOC, in::length}});
  }
}

void tell_finished(const common& cmn, diameter_number ND, layer_number NL) {
  for (const part of : {part::py, part::tz, part::qz}) {
    note_about(cmn, {of, NL, ND});
    note_curve(cmn, true);
  }
}

void remove_stress(common& cmn, diameter_number ND, layer_number NL) {
  for (curve_table* stress : {&cmn.PYSTR, &cmn.TZSTR, &cmn.QZSTR})
    for (int I = 1; I <= cmn.MAXPNT; ++I) (*stress)(I, ND, NL) = 0.0;
}

void fill_out(const curve_family& family, diameter_number ND, layer_number NL, int MAXPNT) {
  const int O = family.NORG(ND, NL);
  const int H = family.NPNT(ND, NL) / 2;
  const int F = O - H - 1;
  if (F <= 0) return;
  for (int I = F; I >= 1; --I) {
    family.DSP(I, ND, NL) = family.DSP(I + 1, ND, NL) - 1.0;
    family.STR(I, ND, NL) = family.STR(I + 1, ND, NL);
  }
  for (int I = O + H + 1; I <= MAXPNT; ++I) {
    family.DSP(I, ND, NL) = family.DSP(I - 1, ND, NL) + 1.0;
    family.STR(I, ND, NL) = family.STR(I - 1, ND, NL);
  }
  family.NPNT(ND, NL) = MAXPNT;
}

bool rises(common& cmn, const curve_family& family, diameter_number ND, layer_number NL,
           const char* sequence_error) {
  const int N = family.NPNT(ND, NL);
  const int B = family.NORG(ND, NL) - N / 2;
  const int E = B - 1 + N;
  for (int I = B + 1; I <= E; ++I) {
    const double Z = family.DSP(I, ND, NL);
    const double before = family.DSP(I - 1, ND, NL);
    if (Z - before < cmn.EPS) {
      fail(cmn, 1, sequence_error, ND, NL, I, Z, before);
      return false;
    }
  }
  return true;
}

bool modify_curves(common& cmn, diameter_number ND, layer_number NL, bool live) {
  const curve_family py = py_curves(cmn), tz = tz_curves(cmn), qz = qz_curves(cmn);
  if (live) {
    note_about(cmn, {part::py, NL, ND});
    if (!apply_py_factors(cmn, ND, NL)) return false;
    apply_axial_factors(tz, ND, NL, cmn.MAXPNT, cmn.TZMOD(ND, NL));
    apply_axial_factors(qz, ND, NL, cmn.MAXPNT, cmn.QZMOD(ND, NL));
    tell_axial_factors(cmn, {part::tz, NL, ND}, cmn.TZMOD(ND, NL),
                       {"TZFPOS", "TZFNEG", "TZFDSP", "TZFEND", "TZDEND"});
    tell_axial_factors(cmn, {part::qz, NL, ND}, cmn.QZMOD(ND, NL),
                       {"QZFPOS", "QZFNEG", "QZFDSP", "QZFEND", "QZDEND"});
  } else {
    tell_dead(cmn, ND, NL);
    remove_stress(cmn, ND, NL);
  }
  for (const curve_family& family : {py, tz, qz}) fill_out(family, ND, NL, cmn.MAXPNT);
  tell_finished(cmn, ND, NL);
  return rises(
             cmn, py, ND, NL,
             "(/,' **** SR/MODIFY : P-Y DATA SEQUENCE ERROR',/,' NDIA,LAY,N, PYDSP(N),PYDSP(N-1)=',3i5,2e12.4)") &&
         rises(
             cmn, tz, ND, NL,
             "(/,' **** SR/MODIFY : T-Z DATA SEQUENCE ERROR',/,' NDIA,LAY,N,TZDSP(N),TZDSP(N-1)=',3i5,2e12.4)") &&
         rises(
             cmn, qz, ND, NL,
             "(/,' **** SR/MODIFY : Q-Z DATA SEQUENCE ERROR',/,' NDIA,LAY,N,QZDSP(N),QZDSP(N-1)=',3i5,2e12.4)");
}

}  // namespace

void MODIFY(common& cmn) {
  const int IFIRST = first_live_layer(cmn);
  for (diameter_number ND(1); ND <= cmn.NUMDIA; ++ND)
    for (layer_number NL(1); NL <= cmn.NUMLAY; ++NL)
      if (!modify_curves(cmn, ND, NL, NL >= IFIRST)) return;
}

}  // namespace tervak
