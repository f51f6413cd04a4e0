#pragma once

#include <string>

#include <gtest/gtest.h>

#include "Control/state/common.hpp"
#include "fem/errors.hpp"
#include "support/work_directory.hpp"

/// A run state (constants set, kN and m, no safety) in an empty directory of its own. Nobody opens its units,
/// so that printed() gives what they got.
class scratch_run : public ::testing::Test, public work_directory {
 protected:
  tervak::common cmn;

  scratch_run() {
    tervak::set_constants(cmn);
    cmn.UNITF = cmn.UNITM = cmn.SFTPHI = cmn.SFSU = 1.0;
    cmn.ATMPRS = 101.3;
  }
};

/// The text of the stop that `stage` ends the run with; "" when it does not.
template <class Stage>
std::string stop_of(Stage stage) {
  try {
    stage();
  } catch (const fem::stop_info& stop) {
    return stop.what();
  }
  return "";
}
