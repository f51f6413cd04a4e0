#include "IO/modification_factors.hpp"

#include <cmath>

#include "Control/report.hpp"
#include "IO/input_steps.hpp"
#include "IO/TervakUnitConverter.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::AxialModificationRecord;
using Vrsk::Plin::TervakExchange::PyModificationRecord;
using Vrsk::Plin::TervakExchange::Tervak;

struct factor_texts {
  const char *sequence, *layer, *diameter, *values;
};

/// What a record covers.
struct coverage {
  int L1 = 0, L2 = 0;
  double D = 0.0;
};

/// 0, or 1 for layers out of sequence, 2 for a layer that does not exist; the last test that fails counts.
int layer_fault(const common& cmn, int i, const coverage& now, const coverage& last) {
  int code = 0;
  if (i == 1 && now.L1 != 1) code = 1;
  if (now.L1 > now.L2) code = 1;
  if (now.L2 > cmn.NUMLAY) code = 2;
  if (cmn.EPS > std::abs(now.D - last.D) && now.L1 <= last.L2) code = 1;
  return code;
}

void check_layers(common& cmn, const factor_texts& texts, int i, const coverage& now, const coverage& last) {
  const int code = layer_fault(cmn, i, now, last);
  if (code == 1) fail(cmn, NOT_ACCEPTED, texts.sequence, i, now.L1, now.L2, last.L1, last.L2);
  if (code == 2) fail(cmn, NOT_ACCEPTED, texts.layer, now.L2, cmn.NUMLAY);
}

/// The diameters first to last of a record; {0, 0} when the run has no such diameter.
struct diameters {
  int first, last;
};
diameters find_diameters(const common& cmn, double D) {
  if (cmn.EPS > D) return {1, cmn.NUMDIA};
  for (int ND = 1; ND <= cmn.NUMDIA; ++ND)
    if (cmn.EPS > std::abs(D - cmn.DIAM(ND))) return {ND, ND};
  return {0, 0};
}

/// The number of the last P-Y value at fault. The stress limit takes part twice.
int value_fault(double EPS, const std::array<double, 6>& values) {
  const auto [PYFSTR, PYFDSP, PYGAP, PYLIMS, PYFEND, PYDEND] = values;
  if (EPS > PYDEND) return 7;
  if (-EPS > PYFEND) return 6;
  if (-EPS > PYLIMS) return 5;
  if (PYLIMS > EPS + 1.0) return 4;
  if (-EPS > PYGAP) return 3;
  if (EPS > PYFDSP) return 2;
  if (-EPS > PYFSTR) return 1;
  return 0;
}

/// The number of the last T-Z or Q-Z value at fault.
int value_fault(double EPS, const std::array<double, 5>& values) {
  const auto [FPOS, FNEG, FDSP, FEND, DEND] = values;
  if (EPS > DEND) return 5;
  if (-EPS > FEND) return 4;
  if (EPS > FDSP) return 3;
  if (-EPS > FNEG) return 2;
  if (-EPS > FPOS) return 1;
  return 0;
}

template <std::size_t K, class Record, class ValuesOf>
void read_family(common& cmn, const std::vector<Record>& records, table2<std::array<double, K>>& factors,
                 const factor_texts& texts, ValuesOf values_of) {
  coverage last;
  for (int i = 1;; ++i) {
    const Record& record = entry(records, i);
    if (record.L1 == 0) return;
    const coverage now{record.L1, record.L2, cmn.CONVERTER->Length(record.Diameter)};
    const std::array<double, K> values = values_of(record);

    check_layers(cmn, texts, i, now, last);
    if (cmn.IERR != 0) return;
    last = now;
    const diameters held = find_diameters(cmn, now.D);
    if (held.last == 0) return fail(cmn, NOT_ACCEPTED, texts.diameter, i, now.D);
    const int fault = value_fault(cmn.EPS, values);
    if (fault != 0) return fail(cmn, NOT_ACCEPTED, texts.values, i, fault);

    for (int NL = now.L1; NL <= now.L2; ++NL)
      for (int ND = held.first; ND <= held.last; ++ND) factors(ND, NL) = values;
    if (now.L2 >= cmn.NUMLAY && held.last == cmn.NUMDIA) return;
  }
}

std::array<double, 5> axial_values(const AxialModificationRecord& record) {
  return {record.FPOS, record.FNEG, record.FDSP, record.FEND, record.DEND};
}

}  // namespace

void read_py_factors(common& cmn, const Tervak& profile) {
  constexpr factor_texts texts{
      "(/,' **** SR/READG3 : P-Y MODIF LAYER SEQUENCE ERROR',/,' NOW,L1,L2,LAST1,LAST2=',5i5)",
      "(/,' **** SR/READG3 : P-Y MODIF LAYER ERROR  LAY,NUMLAY=',2i5)",
      "(/,' **** SR/READG3 : P-Y MODIF DIAM  NOW,DIA=',i5,f10.3)",
      "(/,' **** SR/READG3 : P-Y MODIF VALUES  NOW,IERR=',2i5)",
  };
  const auto values = [&](const PyModificationRecord& record) {
    const double PYGAP = cmn.CONVERTER->Length(record.PYGAP);
    return std::array{record.PYFSTR, record.PYFDSP, PYGAP, record.PYLIMS, record.PYFEND, record.PYDEND};
  };
  read_family(cmn, profile.GetTervakInputData().PyModification.Records, cmn.PYMOD, texts, values);
}

void read_tz_factors(common& cmn, const Tervak& profile) {
  constexpr factor_texts texts{
      "(/,' **** SR/READG3 : T-Z MODIF LAYER SEQUENCE ERROR',/,' NOW,L1,L2,LAST1,LAST2=',5i5)",
      "(/,' **** SR/READG3 : T-Z MODIF LAYER ERROR  LAY,NUMLAY=',2i5)",
      "(/,' **** SR/READG3 : T-Z MODIF DIAM  NOW,DIA=',i5,f10.3)",
      "(/,' **** SR/READG3 : T-Z MODIF VALUES  NOW,IERR=',2i5)",
  };
  read_family(cmn, profile.GetTervakInputData().TzModification.Records, cmn.TZMOD, texts, axial_values);
}

void read_qz_factors(common& cmn, const Tervak& profile) {
  constexpr factor_texts texts{
      "(/,' **** SR/READG3 : Q-Z MODIF LAYER SEQUENCE ERROR',/,' NOW,L1,L2,LAST1,LAST2=',5i5)",
      "(/,' **** SR/READG3 : Q-Z MODIF LAYER ERROR  LAY,NUMLAY=',2i5)",
      "(/,' **** SR/READG3 : Q-Z MODIF DIAM  NOW,DIA=',i5,f10.3)",
      "(/,' **** SR/READG3 : Q-Z MODIF VALUES  NOW,IERR=',2i5)",
  };
  bool tension = false;
  const auto values = [&](const AxialModificationRecord& record) {
    tension = tension || record.FNEG > cmn.EPS;
    return axial_values(record);
  };
  read_family(cmn, profile.GetTervakInputData().QzModification.Records, cmn.QZMOD, texts, values);
  if (cmn.IERR == 0 && tension) remark(cmn, "(/,' **** SR/READGE WARNING : PILE TIP TENSION ALLOWED',/,' ')");
}

}  // namespace tervak
