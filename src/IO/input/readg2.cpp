#include "IO/input/readg2.hpp"

#include "Control/state/report.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/input/main_layer_tables.hpp"
#include "IO/input/REV5INP.hpp"
#include "IO/input/revision4_soil.hpp"
#include "IO/units/TervakUnitConverter.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::Tervak;

void read_surface_loads(common& cmn, const Tervak& profile) {
  const auto& run_units = *cmn.CONVERTER;
  cmn.SIGSUR = run_units(profile.GetVerticalStressAtSurface());
  cmn.SIGEMB = run_units(profile.GetVerticalStressUnderEmbankment());
  cmn.AEMB = run_units(profile.GetWidthOfEmbankmentSlopingPart());
  cmn.BEMB = run_units(profile.GetDistancePileToEmbankmentToe());
  cmn.SIGCIR = run_units(profile.GetVerticalStressUnderCircularLoadedArea());
  cmn.RADCIR = run_units(profile.GetRadiusOfCircularLoadedArea());
}

void read_point_loads(common& cmn, const Tervak& profile) {
  const auto& input = profile.GetTervakInputData();
  cmn.NUMFRC = static_cast<int>(input.PointLoads.size());
  if (cmn.NUMFRC > cmn.MAXFRC)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : NUMFRC ERROR  NUMFRC,MAX=',2i5)", cmn.NUMFRC,
                cmn.MAXFRC);
  cmn.FRCPNT.allocate(cmn.NUMFRC + 1);
  cmn.FRCDST.allocate(cmn.NUMFRC + 1);
  for (int n = 1; n <= cmn.NUMFRC; ++n) {
    cmn.FRCPNT(n) = cmn.CONVERTER->Force(entry(input.PointLoads, n));
    cmn.FRCDST(n) = cmn.CONVERTER->Length(entry(input.PointLoadDistances, n));
  }
}

void check_loaded_areas(common& cmn, const Tervak&) {
  if (-cmn.EPS > cmn.AEMB)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : AEMB ERROR',f10.3)", cmn.AEMB);
  if (-cmn.EPS > cmn.RADCIR)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READG2 : RADIUS CIRCULAR LOAD ERROR',f10.3)", cmn.RADCIR);
}

}  // namespace

void READG2(common& cmn, const Tervak& profile) {
  run_steps(cmn, profile, {read_surface_loads, read_point_loads, check_loaded_areas});
  if (cmn.IERR != 0) return;
  if (profile.GetVersion() == 4)
    run_steps(cmn, profile, {read_soil_types, read_depth_table, read_layers});
  else
    run_steps(cmn, profile, {REV5INP, map_main_layers});
}

}  // namespace tervak
