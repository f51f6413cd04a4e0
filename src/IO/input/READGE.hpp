#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// The input stage: takes profile PROFILECOUNT (from 1) of the imported deck into the run state, checks it,
/// makes its tables and its layers' codes. Values come out of the imported profile only; the deck's lines are
/// copied once, for profile 1, so that the error report can show them.
///
/// On return IERR is 0 or, after any failure, 1. Each failure prints its message on the run log, followed by
/// the report of LINERD; more than 50 diameters print their message only. Warnings leave IERR alone. A table
/// with fewer records than its count throws std::out_of_range.
///
/// Reads PROFILES and, for profile 1, the deck on NFINP. Writes the general values (LABEL to GAMPWP), the
/// counts, CONVERTER, what READG2 and READG3 write, the file on NFTMP, and allocates the tables.
void READGE(common& cmn, int PROFILECOUNT);

}  // namespace tervak
