#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Writes the output files of the present profile, number PROFILECOUNT from 1: both USFOS exports (NFFEM with
/// MISOPL, NFF70 with HYPELAST and ELPLCURV records), then the profile's records of the interface file.
/// IERR: -1 when an export failed, which does not keep the interface file from its records; 1 when the
/// interface file's writer failed. An exception out of the export ends the run: its own report is no valid
/// format, and the failure of that report, a std::runtime_error of "Invalid FORMAT specification: ", leaves
/// this routine.
void OutputFiles(common& cmn, int PROFILECOUNT);

}  // namespace tervak
