#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Soil parameters of every calculation layer of a revision 5 profile. Interpolates the main layers' values
/// to the layers' levels, fills in what the deck left out by correlations between cone resistance, relative
/// density and friction angle, derives OCR, sensitivity and shear modulus, and averages the cone resistance
/// over three pile diameters. Runs behind stage 2 of BUILD5 and overwrites its PHIR and SURED, except above
/// the local scour level.
///
/// A value that the deck gives is never replaced. SUCMP and PHIL are reduced by SFSU and SFTPHI, but a
/// friction angle found by the correlations carries no safety factor. Every failure prints its message on the
/// run log and ends the run (fem::stop_info).
///
/// Reads the main layers (ZMAIN to KSOILM, TCMTOP to GOFAC), LAYCOD, ZLAY, SIGZRES, SFTPHI, SFSU and DIAMP.
/// Writes the soil values ZNOW to POISL, PHIR, SURED, GSOIL, and in the depth table POIS and G0SOIL.
void R5SOIL(common& cmn);

}  // namespace tervak
