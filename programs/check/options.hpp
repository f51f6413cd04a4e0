#pragma once

#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace tervak::check {

struct options {
  bool help = false, strict = false;
  std::set<std::string, std::less<>> accepted;
  std::string log;      ///< of --explain, "" to check the deck
  std::string results;  ///< directory of --results, "" to check the deck
  std::string deck;
};

/// A command line that cannot be followed.
struct usage_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

extern const char* const usage_text;

/// `arguments` without the name of the program. Throws usage_error.
options parse_options(const std::vector<std::string>& arguments);

}  // namespace tervak::check
