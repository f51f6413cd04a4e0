#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Unit skin friction in sand, Imperial College method ICP-05 (Jardine, Chow, Overy and Standing 2005):
/// radial stress from the cone resistance and the distance to the tip, plus a dilation stress, times the
/// tangent of the interface angle. MCSAND 4 is the full form, 5 the simplified form of API RP 2GEO, annex.
///
/// Metres and kPa as published. SIGZ effective vertical stress; QCPT cone resistance; DISTH distance to the
/// tip; RAD outer radius; WALL thickness; DELTAF interface angle in degrees, and if that is 0 it comes from
/// D50, the mean grain size in mm; IDOPCL 1 open, 2 closed tip. IERR: a value above 0 on entry asks for a
/// trace on that unit; -1, -2 MCSAND; 1 SIGZ, 2 QCPT zero; 3 DISTH negative; 4 RAD, 5 WALL too small;
/// 6 neither DELTAF nor D50; 7 IDOPCL; 8 WALL above RAD. A later test wins. No results on an error.
void ICP05SS(common& cmn, int MCSAND, double SIGZ, double QCPT, double DISTH, double RAD, double WALL,
             double DELTAF, double D50, int IDOPCL, double& TAUCMP, double& TAUTNS, int& IERR);

}  // namespace tervak
