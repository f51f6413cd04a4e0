#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/input/revision4_soil.hpp"
#include "IO/units/TervakUnitConverter.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::Tervak;
using Vrsk::Plin::TervakExchange::TzQzRecord;

void read_curve_constants(common& cmn, const Tervak& profile) {
  cmn.ZONINF = profile.GetTervakInputData().ZonInf;
  if (sp(1.01f) > cmn.ZONINF)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : ZONINF ERROR',f10.3)", cmn.ZONINF);
  cmn.RFTZ = profile.GetTervakInputData().RfTz;
  if (-cmn.EPS > cmn.RFTZ || cmn.RFTZ > 1.0)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : RFTZ ERROR',f10.3)", cmn.RFTZ);
}

void store(common& cmn, int r, const TzQzRecord& record) {
  constexpr double NOT_GIVEN = -1.0;
  const auto& run_units = *cmn.CONVERTER;
  cmn.ZTQZ(r) = run_units.Length(record.Z);
  cmn.TCMP(r) = run_units.Stress(record.SkinFrictionCompression);
  cmn.TTNS(r) = run_units.Stress(record.SkinFrictionTension);
  cmn.G0SOIL(r) = record.ShearModulus ? run_units.ForcePerUnitArea(*record.ShearModulus) : NOT_GIVEN;
  cmn.TZDRAT(r) = record.TzDisplacementRatio;
  cmn.SIGTIP(r) = run_units.Stress(record.TipStress);
  cmn.POIS(r) = record.PoissonRatio;
  cmn.QZDRAT(r) = record.QzDisplacementRatio;
}

void read_rows(common& cmn, const Tervak& profile) {
  for (int r = 1; r <= cmn.NUMTQZ; ++r) store(cmn, r, entry(profile.GetTervakInputData().TzQzTable, r));
  for (int r = 2; r <= cmn.NUMTQZ; ++r)
    if (!(cmn.ZTQZ(r) - cmn.ZTQZ(r - 1) > cmn.EPS))
      return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TZ/QZ SEQUENCE ERROR',i3,2f8.2)", r,
                  cmn.ZTQZ(r - 1), cmn.ZTQZ(r));
}

void check_skin(common& cmn, int r) {
  // Two descriptors and three items: the reals under "i5" come out in the runtime's general form.
  if (-cmn.EPS > cmn.TCMP(r) || -cmn.EPS > cmn.TTNS(r))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TCMP,TTNS ERROR  N,IERR=',2i5)", r, cmn.TCMP(r),
                cmn.TTNS(r));
  if (cmn.TTNS(r) - cmn.EPS > cmn.TCMP(r))
    remark(cmn, "(/,' **** WARNING FROM SR/READG2 : TCMP.LT.cmn.ttns',i5,2f10.3)", r, cmn.TCMP(r),
           cmn.TTNS(r));
  if (-100.0 > cmn.G0SOIL(r))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,G0SOIL=',i5,f10.3)", r, cmn.G0SOIL(r));
  if (-cmn.EPS > cmn.TZDRAT(r) || cmn.TZDRAT(r) > 0.5)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,TZ/D-RATIO=',i5,f10.3)", r, cmn.TZDRAT(r));
  if (cmn.EPS > cmn.TZDRAT(r)) cmn.TZDRAT(r) = sp(0.01f);
}

void check_tip(common& cmn, int r) {
  if (-cmn.EPS > cmn.SIGTIP(r))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,SIGTIP=',i5,f10.3)", r, cmn.SIGTIP(r));
  if (-cmn.EPS > cmn.POIS(r) || cmn.POIS(r) > sp(0.50001f))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,POIS=',i5,f10.3)", r, cmn.POIS(r));
  if (-cmn.EPS > cmn.QZDRAT(r) || cmn.QZDRAT(r) > 0.5)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : TYP,QZ/D-RATIO=',i5,f10.3)", r, cmn.QZDRAT(r));
  if (cmn.EPS > cmn.QZDRAT(r)) cmn.QZDRAT(r) = sp(0.05f);
}

void check_rows(common& cmn, const Tervak&) {
  for (int r = 1; r <= cmn.NUMTQZ && cmn.IERR == 0; ++r) {
    check_skin(cmn, r);
    if (cmn.IERR == 0) check_tip(cmn, r);
  }
}

}  // namespace

void read_depth_table(common& cmn, const Tervak& profile) {
  run_steps(cmn, profile, {read_curve_constants, read_rows, check_rows});
}

}  // namespace tervak
