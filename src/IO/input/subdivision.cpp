#include <cmath>

#include "Control/state/report.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/input/revision5_sections.hpp"
#include "IO/units/TervakUnitConverter.hpp"
#include "SoilCurves/axial/axial_methods.hpp"
#include "SoilCurves/py/py_methods.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::SubdivisionRecord;
using Vrsk::Plin::TervakExchange::Tervak;

void store(common& cmn, int m, const SubdivisionRecord& record) {
  cmn.NSUBM(m) = record.Subdivisions;
  cmn.PYCODM(m) = record.PyCode;
  cmn.TZCODM(m) = record.TzCode;
  cmn.QZCODM(m) = record.QzCode;
  cmn.OPENM(m) = record.OpenCrack;
  cmn.PYPARM(m) = record.PyParameters;
}

void read_node_pile(common& cmn, const Tervak& profile) {
  cmn.NUMPIL = profile.GetTervakInputData().Subdivision.NumberOfPile;
  if (cmn.NUMPIL < 0)
    fail(cmn, NOT_ACCEPTED, "(/,' **** SR/REV5INP : Non-accepted NUMPIL value =',i5)", cmn.NUMPIL);
}

void check_bottom(common& cmn, int m, double Z) {
  if (std::abs(Z - cmn.ZMAIN(m)) > cmn.EPS)
    fail(cmn, NOT_ACCEPTED,
         "(/,' **** SR/REV5INP : Layer bottom Z-levels mismatch',/,' Layer, Z1, Z2 =',i5,2f12.3)", m, Z,
         cmn.ZMAIN(m));
}

/// A main layer is divided by its count or by the nodes of a pile, never by both.
void check_count(common& cmn, int m) {
  if (cmn.NUMPIL != 0 && cmn.NSUBM(m) > 0)
    return fail(
        cmn, NOT_ACCEPTED,
        "(/,' **** SR/REV5INP : Layer sub-division conflicting',' specifications',/,' Layer, sub-division, NUMPIL =',3i5)",
        m, cmn.NSUBM(m), cmn.NUMPIL);
  if (cmn.NSUBM(m) < 0 || cmn.NSUBM(m) > cmn.MAXLAY)
    return fail(
        cmn, NOT_ACCEPTED,
        "(/,' **** SR/REV5INP : Main layer sub-division error',' input',/,' Layer, subdivisions, max allowed layers =',3i5)",
        m, cmn.NSUBM(m), cmn.MAXLAY);
  if (cmn.NSUBM(m) == 0 && cmn.NUMPIL == 0)
    return fail(
        cmn, NOT_ACCEPTED,
        "(/,' **** SR/REV5INP : Main layer sub-division error',' input',/,' Subdivisions = 0 requires non-zero NUMPIL input',/,' Layer, subdivisions, NUMPIL=',3i5)",
        m, cmn.NSUBM(m), cmn.NUMPIL);
}

void check_codes(common& cmn, int m) {
  if (!accepts(py_methods(), cmn.PYCODM(m), 5))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/REV5INP : Non-accepted P-Y code. Layer,code=',2i5)", m,
                cmn.PYCODM(m));
  if (!accepts(tz_methods(), cmn.TZCODM(m), 5))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/REV5INP : Non-accepted T-Z code. Layer,code=',2i5)", m,
                cmn.TZCODM(m));
  if (!accepts(qz_methods(), cmn.QZCODM(m), 5))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/REV5INP : Non-accepted Q-Z code. Layer,code=',2i5)", m,
                cmn.QZCODM(m));
}

/// Some P-Y methods are for one kind of soil only. A main layer with a strength is clay.
void check_code_against_soil(common& cmn, int m) {
  const double Q = cmn.SUTOP(m) + cmn.SUBOT(m);
  const curve_method& method = *find_method(py_methods(), cmn.PYCODM(m));
  if ((method.soil == soil_kind::clay && cmn.EPS > Q) || (method.soil == soil_kind::sand && Q > cmn.EPS))
    fail(cmn, NOT_ACCEPTED, method.wrong_soil, m, method.code);
}

void check_crack(common& cmn, int m) {
  if (cmn.OPENM(m) != 0 && cmn.OPENM(m) != 1)
    fail(cmn, NOT_ACCEPTED,
         "(/,' **** SR/REV5INP : Non-accepted code for open/closed',' crack',/,' Layer, code =',2i5)", m,
         cmn.OPENM(m));
}

void read_layer(common& cmn, int m, const SubdivisionRecord& record) {
  store(cmn, m, record);
  if (record.Number != m) return fail(cmn, NOT_ACCEPTED, LAYER_SEQUENCE_ERROR, m, record.Number);
  check_bottom(cmn, m, cmn.CONVERTER->Length(record.BottomZ));
  for (const auto check : {check_count, check_codes, check_code_against_soil, check_crack})
    if (cmn.IERR == 0) check(cmn, m);
}

}  // namespace

void read_subdivision(common& cmn, const Tervak& profile) {
  read_node_pile(cmn, profile);
  for (int m = 1; m <= cmn.NUMLAYM && cmn.IERR == 0; ++m)
    read_layer(cmn, m, entry(profile.GetTervakInputData().Subdivision.Records, m));
}

}  // namespace tervak
