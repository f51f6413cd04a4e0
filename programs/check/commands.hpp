#pragma once

#include <ostream>

#include "check/options.hpp"

namespace tervak::check {

/// Does what the command line asks and gives the exit status. Throws std::runtime_error where a file cannot
/// be read or the trial run cannot be made.
int run(const options& o, std::ostream& out);

}  // namespace tervak::check
