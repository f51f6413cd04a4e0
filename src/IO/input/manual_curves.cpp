#include "IO/input/manual_curves.hpp"

#include <cmath>

#include "Control/state/report.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/units/TervakUnitConverter.hpp"
#include "SoilCurves/store/curve_family.hpp"
#include "SoilCurves/store/curve_point.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::ManualCurveRecord;
using Vrsk::Plin::TervakExchange::Tervak;

/// Where the three families differ.
struct manual_family {
  curve_family curves;
  int layer_code::*code;
  const std::vector<ManualCurveRecord>& records;
  std::vector<double> ManualCurveRecord::*counted;  ///< the list that gives the number of points
  const char *layer_text, *diameter_text, *points_text, *sequence_text;
  bool one_side = false;  ///< given from the origin on, and stored from there
};

curve_side read_points(const common& cmn, const ManualCurveRecord& record, int N) {
  curve_side points;
  for (int k = 1; k <= N; ++k)
    points.push_back({cmn.CONVERTER->Stress(entry(record.Stresses, k)),
                      cmn.CONVERTER->Length(entry(record.Displacements, k))});
  return points;
}

void check_points(common& cmn, const manual_family& family, layer_number NL, int most,
                  const curve_side& points) {
  const int N = static_cast<int>(points.size());
  if (N < 2 || N > most) return fail(cmn, NOT_ACCEPTED, family.points_text, NL, N);
  const curve_point first = points.front();
  if (family.one_side && (std::abs(first.stress) > cmn.EPS || std::abs(first.displacement) > cmn.EPS))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG3 : MANUAL P-Y FIRST POINT NOT ZERO',/,i20,2f10.3)", NL,
                first.stress, first.displacement);
  for (std::size_t k = 1; k < points.size(); ++k)
    if (cmn.EPS > points[k].displacement - points[k - 1].displacement)
      return fail(cmn, NOT_ACCEPTED, family.sequence_text, NL, points[k - 1].displacement,
                  points[k].displacement);
}

void read_curve(common& cmn, const manual_family& family, int first_slot, int most, layer_number NL,
                diameter_number ND, const ManualCurveRecord& record) {
  const int N = static_cast<int>((record.*family.counted).size());
  family.curves.NPNT(ND, NL) = N;
  const curve_side points = read_points(cmn, record, N);
  const double diameter = cmn.CONVERTER->Length(record.Diameter);
  if (record.Layer != NL) return fail(cmn, NOT_ACCEPTED, family.layer_text, NL, record.Layer);
  if (std::abs(diameter - cmn.DIAM(ND)) > cmn.EPS)
    return fail(cmn, NOT_ACCEPTED, family.diameter_text, NL, diameter);
  check_points(cmn, family, NL, most, points);
  if (cmn.IERR != 0) return;
  int slot = first_slot;
  for (const curve_point& point : points) {
    family.curves.STR(slot, ND, NL) = point.stress;
    family.curves.DSP(slot, ND, NL) = point.displacement;
    ++slot;
  }
}

/// Points stand in the slots from first_slot on, `most` at most.
void read_family(common& cmn, const manual_family& family, int first_slot, int most) {
  int next = 1;
  for (layer_number NL(1); NL <= cmn.NUMLAY; ++NL) {
    if (cmn.LAYCOD(NL).*family.code != 0) continue;
    for (diameter_number ND(1); ND <= cmn.NUMDIA; ++ND) {
      read_curve(cmn, family, first_slot, most, NL, ND, entry(family.records, next++));
      if (cmn.IERR != 0) return;
    }
  }
}

}  // namespace

void read_manual_py(common& cmn, int MIDPNT, const Tervak& profile) {
  const manual_family family{
      py_curves(cmn),
      &layer_code::PYCODE,
      profile.GetTervakInputData().ManualPy.Records,
      &ManualCurveRecord::Stresses,
      "(/,' **** SR/READG3 : MANUAL P-Y LAYER SEQUENCE  NL,LAY',2i5)",
      "(/,' **** SR/READG3 : MANUAL P-Y DIAMETER  NL,DIA=',i5,f10.3)",
      "(/,' **** SR/READG3 : MANUAL P-Y CURVE POINTS  NL,NUM=',2i5)",
      "(/,' **** SR/READG3 : MANUAL P-Y Y-DISPL SEQUENCE ERROR',/,i20,2f10.3)",
      true,
  };
  read_family(cmn, family, MIDPNT, MIDPNT);
}

void read_manual_tz(common& cmn, const Tervak& profile) {
  const manual_family family{
      tz_curves(cmn),
      &layer_code::TZCODE,
      profile.GetTervakInputData().ManualTz.Records,
      &ManualCurveRecord::Displacements,
      "(/,' **** SR/READG3 : MANUAL T-Z LAYER SEQUENCE  NL,LAY',2i5)",
      "(/,' **** SR/READG3 : MANUAL T-Z DIAMETER  NL,DIA=',i5,f10.3)",
      "(/,' **** SR/READG3 : MANUAL T-Z CURVE POINTS  NL,NUM=',2i5)",
      "(/,' **** SR/READG3 : MANUAL T-Z Z-DISPL SEQUENCE ERROR',/,i20,2f10.3)",
  };
  read_family(cmn, family, 1, cmn.MAXPNT);
}

void read_manual_qz(common& cmn, const Tervak& profile) {
  const manual_family family{
      qz_curves(cmn),
      &layer_code::QZCODE,
      profile.GetTervakInputData().ManualQz.Records,
      &ManualCurveRecord::Stresses,
      "(/,' **** SR/READG3 : MANUAL Q-Z LAYER SEQUENCE  NL,LAY',2i5)",
      "(/,' **** SR/READG3 : MANUAL Q-Z DIAMETER  NL,DIA=',i5,f10.3)",
      "(/,' **** SR/READG3 : MANUAL Q-Z CURVE POINTS  NL,NUM=',2i5)",
      "(/,' **** SR/READG3 : MANUAL Q-Z Z-DISPL SEQUENCE ERROR',/,i20,2f10.3)",
  };
  read_family(cmn, family, 1, cmn.MAXPNT);
}

}  // namespace tervak
