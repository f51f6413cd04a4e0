#include "IO/manual_curves.hpp"

#include <cmath>

#include "Control/report.hpp"
#include "IO/input_steps.hpp"
#include "IO/TervakUnitConverter.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::ManualCurveRecord;
using Vrsk::Plin::TervakExchange::Tervak;

/// Where the three families differ.
struct curve_family {
  int layer_code::*code;
  std::vector<double> ManualCurveRecord::*counted;  ///< the list that gives the number of points
  int most_points;
  int first_slot;
  bool starts_at_origin;
  const char *layer_text, *diameter_text, *points_text, *sequence_text;
};

struct curve_store {
  table2<int>& count;
  curve_table& stress;
  curve_table& displacement;
};

struct work_lists {
  vector1<double> stress, displacement;
};

work_lists read_points(const common& cmn, const ManualCurveRecord& record, int N) {
  work_lists points;
  for (int k = 1; k <= N; ++k) {
    points.stress.append(cmn.CONVERTER->Stress(entry(record.Stresses, k)));
    points.displacement.append(cmn.CONVERTER->Length(entry(record.Displacements, k)));
  }
  return points;
}

void check_points(common& cmn, const curve_family& family, int NL, int N, const work_lists& points) {
  const auto& [stress, displacement] = points;
  if (N < 2 || N > family.most_points) return fail(cmn, NOT_ACCEPTED, family.points_text, NL, N);
  if (family.starts_at_origin && (std::abs(stress(1)) > cmn.EPS || std::abs(displacement(1)) > cmn.EPS))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG3 : MANUAL P-Y FIRST POINT NOT ZERO',/,i20,2f10.3)", NL,
                stress(1), displacement(1));
  for (int k = 2; k <= N; ++k)
    if (cmn.EPS > displacement(k) - displacement(k - 1))
      return fail(cmn, NOT_ACCEPTED, family.sequence_text, NL, displacement(k - 1), displacement(k));
}

void read_curve(common& cmn, const curve_family& family, const curve_store& curves, int NL, int ND,
                const ManualCurveRecord& record) {
  const int N = static_cast<int>((record.*family.counted).size());
  curves.count(ND, NL) = N;
  const work_lists points = read_points(cmn, record, N);
  const double diameter = cmn.CONVERTER->Length(record.Diameter);
  if (record.Layer != NL) return fail(cmn, NOT_ACCEPTED, family.layer_text, NL, record.Layer);
  if (std::abs(diameter - cmn.DIAM(ND)) > cmn.EPS)
    return fail(cmn, NOT_ACCEPTED, family.diameter_text, NL, diameter);
  check_points(cmn, family, NL, N, points);
  if (cmn.IERR != 0) return;
  for (int k = 1; k <= N; ++k) {
    curves.stress(family.first_slot + k - 1, ND, NL) = points.stress(k);
    curves.displacement(family.first_slot + k - 1, ND, NL) = points.displacement(k);
  }
}

void read_family(common& cmn, const curve_family& family, const curve_store& curves,
                 const std::vector<ManualCurveRecord>& records) {
  int next = 1;
  for (int NL = 1; NL <= cmn.NUMLAY; ++NL) {
    if (cmn.LAYCOD(NL).*family.code != 0) continue;
    for (int ND = 1; ND <= cmn.NUMDIA; ++ND) {
      read_curve(cmn, family, curves, NL, ND, entry(records, next++));
      if (cmn.IERR != 0) return;
    }
  }
}

}  // namespace

void read_manual_py(common& cmn, int MIDPNT, const Tervak& profile) {
  const curve_family family{
      &layer_code::PYCODE,
      &ManualCurveRecord::Stresses,
      MIDPNT,
      MIDPNT,
      true,
      "(/,' **** SR/READG3 : MANUAL P-Y LAYER SEQUENCE  NL,LAY',2i5)",
      "(/,' **** SR/READG3 : MANUAL P-Y DIAMETER  NL,DIA=',i5,f10.3)",
      "(/,' **** SR/READG3 : MANUAL P-Y CURVE POINTS  NL,NUM=',2i5)",
      "(/,' **** SR/READG3 : MANUAL P-Y Y-DISPL SEQUENCE ERROR',/,i20,2f10.3)",
  };
  read_family(cmn, family, {cmn.NPYPNT, cmn.PYSTR, cmn.PYDSP}, profile.GetTervakInputData().ManualPy.Records);
}

void read_manual_tz(common& cmn, const Tervak& profile) {
  const curve_family family{
      &layer_code::TZCODE,
      &ManualCurveRecord::Displacements,
      cmn.MAXPNT,
      1,
      false,
      "(/,' **** SR/READG3 : MANUAL T-Z LAYER SEQUENCE  NL,LAY',2i5)",
      "(/,' **** SR/READG3 : MANUAL T-Z DIAMETER  NL,DIA=',i5,f10.3)",
      "(/,' **** SR/READG3 : MANUAL T-Z CURVE POINTS  NL,NUM=',2i5)",
      "(/,' **** SR/READG3 : MANUAL T-Z Z-DISPL SEQUENCE ERROR',/,i20,2f10.3)",
  };
  read_family(cmn, family, {cmn.NTZPNT, cmn.TZSTR, cmn.TZDSP}, profile.GetTervakInputData().ManualTz.Records);
}

void read_manual_qz(common& cmn, const Tervak& profile) {
  const curve_family family{
      &layer_code::QZCODE,
      &ManualCurveRecord::Stresses,
      cmn.MAXPNT,
      1,
      false,
      "(/,' **** SR/READG3 : MANUAL Q-Z LAYER SEQUENCE  NL,LAY',2i5)",
      "(/,' **** SR/READG3 : MANUAL Q-Z DIAMETER  NL,DIA=',i5,f10.3)",
      "(/,' **** SR/READG3 : MANUAL Q-Z CURVE POINTS  NL,NUM=',2i5)",
      "(/,' **** SR/READG3 : MANUAL Q-Z Z-DISPL SEQUENCE ERROR',/,i20,2f10.3)",
  };
  read_family(cmn, family, {cmn.NQZPNT, cmn.QZSTR, cmn.QZDSP}, profile.GetTervakInputData().ManualQz.Records);
}

}  // namespace tervak
