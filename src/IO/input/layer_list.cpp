#include "Control/state/report.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/input/revision4_soil.hpp"
#include "IO/units/TervakUnitConverter.hpp"
#include "SoilCurves/axial/axial_methods.hpp"
#include "SoilCurves/py/py_methods.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::LayerRecord;
using Vrsk::Plin::TervakExchange::Tervak;

/// How far the layers have come.
struct progress {
  double Z;      ///< bottom of the last layer; it runs on by addition and is not reset to a record's bottom
  int LAST = 0;  ///< number of the last layer
};

void append_levels(common& cmn, progress& at, int i, const LayerRecord& record) {
  const double ZB = cmn.CONVERTER->Length(record.BottomZ);
  if (at.Z + cmn.EPS > ZB)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : LAYER Z-SEQUENCE ERROR',i5,2f10.3)", i, at.Z, ZB);
  // The message shows the limit of the run, though the layers are held against the deck's own count.
  if (record.FirstLayer != at.LAST + 1 || record.FirstLayer > record.LastLayer ||
      record.LastLayer > cmn.NUMLAY)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : LAYER NUMBERING  NOW,L1,L2,MAX=',4i5)", i,
                record.FirstLayer, record.LastLayer, cmn.MAXLAY);
  at.LAST = record.LastLayer;
  const int N = record.LastLayer - record.FirstLayer + 1;
  const double H = (ZB - at.Z) / N;
  for (int n = 1; n <= N; ++n) {
    at.Z = at.Z + H;
    cmn.ZBOTM.append(at.Z);
  }
}

void append_codes(common& cmn, int i, const LayerRecord& record) {
  if (record.SoilType < 1 || record.SoilType > cmn.NUMTYP)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : SOIL TYPE ERROR  NOW,TYPE,NUMTYP=',3i5)", i,
                record.SoilType, cmn.NUMTYP);
  if (!accepts(py_methods(), record.PyCode, 4) || !accepts(tz_methods(), record.TzCode, 4) ||
      !accepts(qz_methods(), record.QzCode, 4))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : PY/TZ/QZ CODE ERROR  NOW,CODES=',4i5)", i,
                record.PyCode, record.TzCode, record.QzCode);
  for (int n = record.FirstLayer; n <= record.LastLayer; ++n)
    cmn.LAYCOD.append({record.SoilType, record.PyCode, record.TzCode, record.QzCode});
}

}  // namespace

void read_layers(common& cmn, const Tervak& profile) {
  const auto& records = profile.GetTervakInputData().Layers;
  progress at{cmn.ZSEAFL};
  for (int i = 1; at.LAST < cmn.NUMLAY; ++i) {
    const LayerRecord& record = entry(records, i);
    append_levels(cmn, at, i, record);
    if (cmn.IERR == 0) append_codes(cmn, i, record);
    if (cmn.IERR != 0) return;
  }
}

}  // namespace tervak
