#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#include "report/units.hpp"

namespace tervak::report {

/// What a call is to do. The page is what is made when nothing else is asked for.
enum class task { page, pictures, tables, comparison, help, version };

/// Layers of a profile; all numbers count from 1.
struct layer_selection {
  std::size_t profile = 1;
  bool all = false;
  std::vector<std::size_t> layers;  // ascending, each once
};

struct options {
  task what = task::page;
  units u;
  std::string input = "TERVAK.RIF";
  std::string output;  // empty: not given
  layer_selection selection;
  std::string csv_directory, json_file;  // at least one of them for tables
  bool all_points = false;
  std::string after;       // the second file of a comparison
  double tolerance = 0.1;  // percent
};

/// A command line that cannot be followed.
struct usage_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

extern const char* const usage_text;

/// `arguments` without the name of the program. Throws usage_error.
options parse_options(const std::vector<std::string>& arguments);

/// Whether a comparison is asked for, whose errors have another exit status. Never throws.
bool asks_for_comparison(const std::vector<std::string>& arguments);

}  // namespace tervak::report
