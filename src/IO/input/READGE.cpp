#include "IO/input/READGE.hpp"

#include "Control/state/LINERD.hpp"
#include "Control/state/report.hpp"
#include "IO/input/deck_copy.hpp"
#include "IO/input/general_values.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/input/readg2.hpp"
#include "IO/input/READG3.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::Tervak;

/// Lines read from the deck's copy when a fault is found: the values are not read line by line, so the report
/// has no line to show.
constexpr int LINE_COUNT = 0;

void read_profile(common& cmn, int PROFILECOUNT) {
  const auto& profiles = cmn.PROFILES.GetSoilProfiles();
  const int NUMBEROFPROFILES = static_cast<int>(profiles.size());
  if (PROFILECOUNT > NUMBEROFPROFILES)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : PROFILECOUNT,NUMBEROFPROFILES=',2i5)", PROFILECOUNT,
                NUMBEROFPROFILES);
  const Tervak& profile = entry(profiles, PROFILECOUNT);
  if (PROFILECOUNT == 1) copy_deck(cmn);
  read_general_values(cmn, profile);
  if (cmn.IERR != 0) return;

  allocate_input_tables(cmn);
  READG2(cmn, profile);
  allocate_layer_tables(cmn);  // NUMLAY is final only now
  if (cmn.IERR == 0) READG3(cmn, cmn.MIDPNT(), profile);
}

}  // namespace

void READGE(common& cmn, int PROFILECOUNT) {
  cmn.IERR = 0;
  read_profile(cmn, PROFILECOUNT);
  if (cmn.IERR == 0 || cmn.IERR == TOO_MANY_DIAMETERS) return;
  LINERD(cmn, cmn.NFTMP, cmn.NFLOG, LINE_COUNT, cmn.IERR);
  cmn.IERR = 1;
}

}  // namespace tervak
