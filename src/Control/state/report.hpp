#pragma once

#include "Control/state/common.hpp"
#include "fem/errors.hpp"
#include "fem/write.hpp"

namespace tervak {

/// Prints a line on the run log and goes on: warnings and progress.
template <class... Items>
void remark(common& cmn, const char* format, const Items&... items) {
  fem::write(cmn.units, cmn.NFLOG, format, items...);
}

/// The one way out of a stage that failed: prints the message on the run log and sets IERR.
template <class... Items>
void fail(common& cmn, int ierr, const char* format, const Items&... items) {
  fem::write(cmn.units, cmn.NFLOG, format, items...);
  cmn.IERR = ierr;
}

/// Ends the run from within a stage. Nobody prints the text: what the engineer needs goes on the run log
/// first. Line 637 of BUILD5, 415 of NGI11 and 181 of READG2 are fixed: these stops have always borne the
/// lines of the first source. All others bear their own.
[[noreturn]] inline void stop(const char* source, int line, const char* text) {
  throw fem::stop_info(source, line, -1, text);
}

}  // namespace tervak
