#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "report/rif_data.hpp"

namespace tervak::report {

/// Indices of what is matched in two files; `none` where one side has no such thing.
using match = std::pair<std::size_t, std::size_t>;
inline constexpr std::size_t none = static_cast<std::size_t>(-1);

/// The names of the profiles, each with the number that says which of several of that name it is, from 1.
std::vector<std::pair<std::string, int>> keys_of(const interface_file& file);

/// Profiles by these keys, in the order of the first file, then those of the second file alone.
std::vector<match> match_profiles(const interface_file& before, const interface_file& after);

/// Two ascending lists of values, equal within `tolerance` and that share of the value, in ascending order.
std::vector<match> match_values(const std::vector<double>& before, const std::vector<double>& after,
                                double tolerance, double relative);

}  // namespace tervak::report
