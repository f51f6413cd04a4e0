#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "report/rif_data.hpp"

namespace tervak::report {

/// How a difference is ordered: what has no percentage comes first.
enum class difference_class { one_sided, code, from_zero, number };

/// One change from the first file to the second.
struct difference {
  difference_class order = difference_class::number;
  double percent = 0.0;       // of the number before; 0 for the other classes
  std::string profile = {};   // name, and which of several of that name
  std::string layer = {};     // "5", "5, now 6"; of a code "5 to 9"
  std::string level = {};     // ZBOTM
  std::string diameter = {};  // empty for what is of the layer
  std::string what = {};
  std::string before = {}, after = {};
};

/// A diameter of a layer that both files have and in which at least one curve differs: indices in the files.
struct changed_layer {
  std::size_t before_profile, before_layer, before_diameter;
  std::size_t after_profile, after_layer, after_diameter;
  std::string title;
};

struct comparison {
  double tolerance = 0.0;                            // percent
  std::size_t profiles = 0, layers = 0, curves = 0;  // that both files have
  std::vector<difference> differences;               // largest first
  std::vector<changed_layer> changed;                // in the order of the first difference of each
};

/// Compares code, effective stress, strength, and of each curve its peak and initial stiffness; where these
/// are alike, also its points. Two numbers differ when the change is above `tolerance` percent of the one
/// before. Profiles are matched by name, those of one name in their order; layers by ZBOTM within 0.001;
/// diameters by value. What one file alone has is a difference. Throws std::runtime_error when the files have
/// no profile in common.
comparison compare_files(const interface_file& before, const interface_file& after, double tolerance);

/// The table of differences behind a line that counts them; `names` are those of the two files.
std::string comparison_text(const comparison& c, const std::string& names);

/// "+12.3 %", "code" or what else stands in the first column of the table.
std::string change_text(const difference& d);

}  // namespace tervak::report
