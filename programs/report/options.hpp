#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#include "report/units.hpp"

namespace tervak::report {

struct options {
  bool help = false;
  units u;
  std::string input = "TERVAK.RIF";
  std::string output = "TERVAK.html";  // TERVAK.svg for a picture
  // The picture of one layer in place of the page: numbers from 1, layer 0 for the page.
  std::size_t profile = 1;
  std::size_t layer = 0;
};

/// A command line that cannot be followed.
struct usage_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

extern const char* const usage_text;

/// `arguments` without the name of the program. Throws usage_error.
options parse_options(const std::vector<std::string>& arguments);

}  // namespace tervak::report
