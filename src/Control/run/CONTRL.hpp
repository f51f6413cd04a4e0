#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// The whole run, from the deck TERVAK.INP in the current directory to its result files. Returns the exit
/// status: 0 behind NORMAL EXIT, otherwise the IERR of the stage that failed, which is 0 too behind an
/// unknown curve code or refused monopile data. Stops and runtime failures leave as exceptions.
int CONTRL(common& cmn);

}  // namespace tervak
