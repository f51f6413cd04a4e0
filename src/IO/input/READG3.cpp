#include "IO/input/READG3.hpp"

#include "Control/state/report.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/input/manual_curves.hpp"
#include "IO/input/read_factors.hpp"
#include "IO/units/TervakUnitConverter.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::SoilDisplacementRecord;
using Vrsk::Plin::TervakExchange::Tervak;

void store_displacement(common& cmn, int n, const SoilDisplacementRecord& record) {
  const auto& run_units = *cmn.CONVERTER;
  cmn.DSPLEV(n) = run_units.Length(record.Z);
  cmn.DSPX(n) = run_units.Length(record.X);
  cmn.DSPY(n) = run_units.Length(record.Y);
  cmn.DSPZ(n) = run_units.Length(record.ZDisplacement);
  cmn.HOLDIA(n) = run_units.Length(record.HoleDiameter);
}

void read_soil_displacements(common& cmn, const Tervak& profile) {
  double ZLAST = -1000000.0;
  for (int n = 1; n <= cmn.NUMDSP; ++n) {
    store_displacement(cmn, n, entry(profile.GetTervakInputData().SoilDisplacements, n));
    if (cmn.EPS + ZLAST > cmn.DSPLEV(n))
      return fail(cmn, NOT_ACCEPTED,
                  "(/,' **** SR/READG3 : GIVEN SOIL DISPL SEQUENCE ERROR',/,' N,ZLAST,ZNOW=',i5,2f10.3)", n,
                  ZLAST, cmn.DSPLEV(n));
    ZLAST = cmn.DSPLEV(n);
    if (-cmn.EPS > cmn.HOLDIA(n))
      return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG3 : HOLE DIAM   N,HOLDIA=',i5,f10.3)", n,
                  cmn.HOLDIA(n));
  }
}

}  // namespace

void READG3(common& cmn, int MIDPNT, const Tervak& profile) {
  read_manual_py(cmn, MIDPNT, profile);
  if (cmn.IERR != 0) return;
  run_steps(cmn, profile,
            {read_py_factors, read_manual_tz, read_tz_factors, read_manual_qz, read_qz_factors,
             read_soil_displacements});
}

}  // namespace tervak
