#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Fills the version texts: name (10 characters), title (100), version (10), two spares (10, 100), release
/// date (11).
void version_texts(fem::text_ref name, fem::text_ref title, fem::text_ref version, fem::text_ref spare1,
                   fem::text_ref spare2, fem::text_ref date);

/// "JAN" to "DEC", from 0.
const char* month_name(int month);

/// Reads the clock into `time` and prints a stamp: mode 1 "THIS RUN WAS STARTED", mode 2 "THIS RUN WAS
/// TERMINATED", any other mode none. It goes to the standard error stream when unit_a is 0, to unit_a when
/// that is above 0, and then also to unit_b when that is at least 1. `out` gets 0. The month of mode 2 is
/// always "JAN".
void run_stamp(common& cmn, int mode, int unit_a, int unit_b, int& out, time_array& time);

/// The large banner at the head of the run log: block letters, the framed name and title, the details of
/// program and machine.
void banner(common& cmn, int unit, fem::text_ref name, fem::text_ref title, fem::text_ref version,
            fem::text_ref date, const time_array& time);

}  // namespace tervak
