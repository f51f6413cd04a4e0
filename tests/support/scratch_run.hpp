#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "Control/common.hpp"
#include "fem/errors.hpp"

/// A run state (constants set, kN and m, no safety) in an empty directory of its own, the current one while
/// the test runs. Units that nobody opens write to files there: printed() gives what a unit got, without CRs.
class scratch_run : public ::testing::Test {
 protected:
  tervak::common cmn;

  scratch_run() : home_(std::filesystem::current_path()) {
    std::string name = (std::filesystem::temp_directory_path() / "tervak-scratch-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    directory_ = name;
    std::filesystem::current_path(directory_);
    tervak::set_constants(cmn);
    cmn.UNITF = cmn.UNITM = cmn.SFTPHI = cmn.SFSU = 1.0;
    cmn.ATMPRS = 101.3;
  }
  ~scratch_run() override {
    std::filesystem::current_path(home_);
    std::filesystem::remove_all(directory_);
  }

  [[nodiscard]] static std::string printed(int unit) {
    std::ifstream in("fem_io_unit_0" + std::to_string(unit), std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(in), {}};
    std::erase(text, '\r');
    return text;
  }

  /// The text of the stop that `stage` ends the run with; "" when it does not.
  template <class Stage>
  static std::string stop_of(Stage stage) {
    try {
      stage();
    } catch (const fem::stop_info& stop) {
      return stop.what();
    }
    return "";
  }

 private:
  std::filesystem::path home_, directory_;
};

/// Expected value with where it comes from and how far the result may be off, as a share of it.
struct checked_value {
  const char* source;
  double got, expected, tolerance;
};

template <class Rows>
void expect_all(const Rows& rows) {
  for (const checked_value& row : rows)
    EXPECT_NEAR(row.got, row.expected, std::abs(row.expected) * row.tolerance) << row.source;
}
