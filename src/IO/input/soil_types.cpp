#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/input/revision4_soil.hpp"
#include "IO/units/TervakUnitConverter.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::SoilTypeRecord;
using Vrsk::Plin::TervakExchange::Tervak;

void store(common& cmn, int t, const SoilTypeRecord& record) {
  cmn.GAMTOT(t) = cmn.CONVERTER->ForcePerUnitVolume(record.TotalUnitWeight);
  cmn.PHI(t) = record.FrictionAngle;
  cmn.SU0(t) = cmn.CONVERTER->Stress(record.SuAtZ0);
  cmn.SU100(t) = cmn.CONVERTER->Stress(record.SuAtZ100);
  cmn.EPS50(t) = record.Eps50;
  cmn.OCR(t) = record.Ocr;
  cmn.APIJ(t) = record.ApiJ;
  cmn.OPEN(t) = record.OpenCrack;
  cmn.TRESMX(t) = record.ResidualRatio;
  cmn.TZZRES(t) = cmn.CONVERTER->Length(record.ResidualDisplacement);
}

void check_strength(common& cmn, int t) {
  const double R = cmn.GAMTOT(t) / cmn.GAMWAT;
  // In spite of its stars this line is a remark.
  if (sp(0.1f) > R || R > 3.0)
    remark(cmn, "(/,' **** SR/READG2 : TYP,GAMTOT,GAMMAW=',i5,2f10.3)", t, cmn.GAMTOT(t), cmn.GAMWAT);
  if (-cmn.EPS > cmn.PHI(t) || cmn.PHI(t) > 89.0)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,PHI-ANGLE=',i5,f10.3)", t, cmn.PHI(t));
  if (-cmn.EPS > cmn.EPS50(t) || cmn.EPS50(t) > 0.5)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,EPS50=',i5,f10.3)", t, cmn.EPS50(t));
  if (cmn.EPS > cmn.EPS50(t)) cmn.EPS50(t) = sp(0.01f);
}

void check_overconsolidation(common& cmn, int t) {
  if (-cmn.EPS > cmn.OCR(t) || cmn.OCR(t) > 100.0)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,OCR=',i5,f10.3)", t, cmn.OCR(t));
  if (-cmn.EPS > cmn.APIJ(t) || cmn.APIJ(t) > 1.0)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,APIJ=',i5,f10.3)", t, cmn.APIJ(t));
  if (cmn.EPS > cmn.APIJ(t)) cmn.APIJ(t) = 0.25;
}

void check_crack_and_residual(common& cmn, int t) {
  if (cmn.OPEN(t) != 0 && cmn.OPEN(t) != 1)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,OPEN=',2i5)", t, cmn.OPEN(t));
  if (cmn.TRESMX(t) > sp(1.01f) || -cmn.EPS > cmn.TRESMX(t))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,TRES/TMAX=',i5,f10.3)", t, cmn.TRESMX(t));
  if (cmn.EPS > cmn.TRESMX(t)) cmn.TRESMX(t) = 1.0;
  // Printed without its values: the line ends at the "=".
  if (-cmn.EPS > cmn.TZZRES(t))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,TZZRES=',i5,f10.3)");
}

void read_soil_type(common& cmn, int t, const SoilTypeRecord& record) {
  if (record.Number != t)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : SOIL TYPE SEQUENCE ERROR',2i5)", t, record.Number);
  store(cmn, t, record);
  check_strength(cmn, t);
  const bool clay = cmn.EPS > cmn.PHI(t);
  if (cmn.IERR == 0 && clay) check_overconsolidation(cmn, t);
  if (cmn.IERR == 0) check_crack_and_residual(cmn, t);
}

}  // namespace

void read_soil_types(common& cmn, const Tervak& profile) {
  const auto& records = profile.GetTervakInputData().SoilTypes.Records;
  for (int t = 1; t <= cmn.NUMTYP && cmn.IERR == 0; ++t) read_soil_type(cmn, t, entry(records, t));
}

}  // namespace tervak
