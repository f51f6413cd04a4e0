#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Where the two layer builds differ: the routine's name stands in the messages.
struct layer_profile_texts {
  double low_unit_weight;      ///< warn when this is above the effective unit weight
  const char* weight_warning;  ///< items: layer, GAMEFF
  const char* negative_su;     ///< items: layer, type, SU0, SU100, ZLAY, SURED
  const char* two_strengths;   ///< items: layer, PHIR, SURED
};

/// Appends the level of every layer to ZLAY: its middle for MIDBOT 1, its bottom otherwise.
void set_layer_levels(common& cmn);

/// The vertical profile of the layers, once ZBOTM and ZLAY stand: GAMEFF, SIGZRES with the relief from scour
/// and the load from the surface (DSIGZ), reduced strength (PHIR, SURED), DEPTH and the clay list.
///
/// A level above the local scour level has no stress and takes no surface load. On a strength that is
/// negative, or a layer with both kinds of strength, it prints the message, sets IERR = 1, leaves the later
/// steps undone and returns false.
///
/// Reads ZBOTM, ZLAY, LAYCOD, the soil types (GAMTOT, PHI, SU0, SU100), sea floor, scour, pore pressure,
/// surface loads, SFTPHI, SFSU and DIAM(1). Writes GAMEFF, SIGZRES, DSIGZ, PHIR, SURED, DEPTH, and the clay
/// list SUCLAY, DPCLAY, ZLCLAY, NUMCLY.
bool make_layer_profile(common& cmn, const layer_profile_texts& texts);

}  // namespace tervak
