#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "report/units.hpp"

namespace tervak::report {

struct options {
  bool help = false;
  units u;
  std::string input = "TERVAK.RIF";
  std::string output = "TERVAK.html";
};

/// A command line that cannot be followed.
struct usage_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

extern const char* const usage_text;

/// `arguments` without the name of the program. Throws usage_error.
options parse_options(const std::vector<std::string>& arguments);

}  // namespace tervak::report
