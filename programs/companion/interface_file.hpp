#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tervak::companion {

/// What an interface file shows of itself, without a second run.
struct interface_summary {
  std::size_t profiles = 0;  ///< records that begin a profile
  std::string fault;         ///< a number that is none (NAN, INF) with its place, or no closing record
};

interface_summary summary_of_interface_file(std::string_view bytes);

}  // namespace tervak::companion
